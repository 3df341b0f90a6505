// What hosts and users do to each class, in short operations.
#pragma once

#include "tests/windows/abuse/subjects.h"

namespace vorn::test {

// What happens to any window, with a click at this client point.
std::vector<Operation> CommonOperations(POINT press);

// The ends of a control; nothing can follow.
std::vector<Operation> Ends(POINT press);

std::vector<Operation> ButtonOperations();
std::vector<Operation> NumEditOperations();
std::vector<Operation> DateEditOperations();
std::vector<Operation> TimeEditOperations();
std::vector<Operation> FontSelectOperations();
std::vector<Operation> CalendarOperations();
std::vector<Operation> DialOperations();
std::vector<Operation> UdlrOperations();
std::vector<Operation> PercentBarOperations();
std::vector<Operation> ListOperations();
std::vector<Operation> ComboBoxOperations();

// The list of a font selector that drops down, by its place: families, sizes.
HWND ListIn(HWND fontSelector, int place);

// Opens the dialog of a date edit as wide as the subject is; returns when that has ended.
void PressCalendarButton(HWND dateEdit);

// A date edit's dialog that is open and is not this one; null when there is none.
HWND FindDateDialog(HWND except = nullptr);

// Ends all of them by a command, IDOK or IDCANCEL.
void EndDateDialogs(WORD command, HWND except = nullptr);

void FillList(HWND list);
void FillComboBox(HWND comboBox);

} // namespace vorn::test
