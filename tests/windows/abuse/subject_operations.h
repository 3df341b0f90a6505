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

void FillList(HWND list);
void FillComboBox(HWND comboBox);

} // namespace vorn::test
