// The numeric edit's painting.
#include "core/edit/edit_paint_win.h"
#include "core/edit/edit_slices_win.h"
#include "core/window_win.h"
#include "numeric/numedit_win.h"

namespace vorn::numeric {
namespace {

// The cells of the picture: up and down, then both pressed.
constexpr std::int32_t kPressedCells = 2;

// How each of them stretches.
constexpr edit::SliceCuts kSpinColumns = {12, 2, 3, 6};
constexpr edit::SliceCuts kSpinRows = {10, 2, 3, 4};

// Whether a parent's answer is the one that the system gives for parents who know no better. Taking
// it would make the field's own colours useless nearly everywhere.
bool IsSystemsAnswer(HDC context, HBRUSH brush) {
    return brush == GetSysColorBrush(COLOR_WINDOW) &&
           GetTextColor(context) == GetSysColor(COLOR_WINDOWTEXT) &&
           GetBkColor(context) == GetSysColor(COLOR_WINDOW);
}

// Asks the parent for colours. Host code runs.
edit::FieldInk AskForInk(HWND window, HDC context, const edit::FieldInk& own) {
    const SavedContext saved(context);
    SetTextColor(context, own.text);
    SetBkColor(context, own.background);
    HBRUSH brush = AskForBrush(window, context, WM_CTLCOLOREDIT);
    if (IsSystemsAnswer(context, brush)) {
        return own;
    }
    return {brush != nullptr ? GetBkColor(context) : own.background, GetTextColor(context),
            GroundOf(brush, context, own.background)};
}

} // namespace

void PaintSpinButtons(HDC context, const edit::EditBody& body, const Rect& rect) {
    const Record& record = edit::RecordIn<Record>(body);
    const bool up = record.spin.pressed == SpinButton::Up;
    const bool down = record.spin.pressed == SpinButton::Down;
    const std::int32_t left = rect.left + 1;
    const std::int32_t middle = rect.top + Height(rect) / 2;
    FillWithColor(context, {rect.left, rect.top, left, rect.bottom},
                  GetSysColor(COLOR_WINDOWFRAME));
    DrawSlices(context, {left, rect.top, rect.right, middle}, record.spinPicture, kSpinColumns,
               kSpinRows, up ? kPressedCells : 0);
    DrawSlices(context, {left, middle, rect.right, rect.bottom}, record.spinPicture, kSpinColumns,
               kSpinRows, down ? kPressedCells + 1 : 1);
}

void Draw(HWND window, const OffscreenPaint& offscreen) {
    const edit::FieldInk own = FieldInkOf(*RecordOf<Record>(window));
    const edit::FieldInk ink = AskForInk(window, offscreen.context(), own);
    const Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        PaintEdit(kNumberKind, window, offscreen.context(), ink, record->alignment);
    }
}

} // namespace vorn::numeric
