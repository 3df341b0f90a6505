// What all edits are as windows: the record that each of them embeds, and what they do alike. What
// differs is in an EditKind, one a control, that every function takes.
//
// A control's record derives from EditBody, so that its EditKind can turn the one into the other.
// It sets `caret` and `modified` and calls InitEdit in WM_NCCREATE, and ReleaseEdit in WM_NCDESTROY
// before it detaches the record. Its window procedure hands what it has no own answer for to
// AnswerEditMessage.
#pragma once

#include "core/edit/edit_actions.h"
#include "core/edit/edit_border.h"
#include "core/edit/edit_colors.h"
#include "core/gdi_win.h"
#include "core/paint_win.h"
#include "core/platform_win.h"
#include "core/record_win.h"

#include <array>

namespace vorn::edit {

// Holds the longest text of an edit, with its terminator.
constexpr std::size_t kShownTextSize = 64;
using TextBuffer = char[kShownTextSize];

constexpr std::size_t kDigitPictureCount = 3;

// Window style bits that all edits have.
constexpr DWORD kStyleDigits = 0x0010;
constexpr DWORD kStyleCells = 0x0020;
constexpr DWORD kStyleReadOnly = 0x0800;

// Notification codes of the focus, those of the system's edit.
constexpr WORD kSetFocus = 0x0100;
constexpr WORD kKillFocus = 0x0200;

struct EditBody {
    TextCaret* caret = nullptr;       // in the record itself
    std::int32_t* modified = nullptr; // likewise
    bool focused = false;
    bool captured = false;    // the left button went down on the edit and has not come up
    bool caretHidden = false; // for as long as it is captured
    bool disabled = false;
    bool readOnly = false;
    bool rightPartShown = false;
    HFONT font = nullptr; // the host's, or the stock SYSTEM_FONT
    FontFigures figures;  // of the font
    std::uint32_t displayStyle = kPlainText;
    std::uint32_t borderStyle = kBorderNone;
    EditColors colors;
    // Two colours, ink black. Null where there is none to be had or the style needs none.
    std::array<HBITMAP, kDigitPictureCount> digits{};
    PaintState paint;
};

// An EditKind's ways between a window, its body and the control's record.
template <class Record>
EditBody* BodyOf(HWND window) {
    return RecordOf<Record>(window);
}
template <class Record>
Record& RecordIn(EditBody& body) {
    return static_cast<Record&>(body);
}
template <class Record>
const Record& RecordIn(const EditBody& body) {
    return static_cast<const Record&>(body);
}

// What one control's edits have of their own. The functions are called with the window's body.
struct EditKind {
    // The body of the window's record; null when the window is no living control of the class.
    EditBody* (*bodyOf)(HWND window);

    // Writes the text that is edited, cut to the buffer and terminated.
    void (*writeText)(const EditBody& body, TextBuffer& buffer);

    // Whether there is no value, whatever the text.
    bool (*isNull)(const EditBody& body);

    // The edit has got the focus or has lost it: brings text, caret and selection in line.
    void (*enterFocus)(EditBody& body);
    void (*leaveFocus)(EditBody& body);

    // A message moved the caret: a field may have to follow.
    void (*followCaret)(EditBody& body);

    // Removes the selected text, and takes a text in its place; both were allowed by the host.
    Actions (*clearSelection)(EditBody& body);
    Actions (*takeText)(EditBody& body, const char* text);

    // Paints what is right of the text area, in client coordinates.
    void (*paintRightPart)(HDC context, const EditBody& body, const Rect& rect);

    Compactness compactness;
    BorderBits borderBits; // in the order in which creation tests them

    // Writes the text as it is shown, where that is not the one that is edited.
    void (*writeShown)(const EditBody& body, TextBuffer& buffer) = nullptr;

    // Writes what goes to the clipboard, where that is not the selected text; nothing goes there
    // when it is empty.
    void (*writeCopied)(const EditBody& body, TextBuffer& buffer) = nullptr;

    // The size of character cells in fonts that are not higher; else the font decides alone.
    Size cell{};

    bool tellsScrolling = true;      // kHScroll and kMaxText
    bool growsSameBorder = true;     // a border that is set again comes on top of the one there is
    bool tellsFocusLossFirst = true; // before the caret goes and the edit is repainted, else after
    bool beepsRefusedMessages = false; // WM_CUT, WM_PASTE, WM_CLEAR and EM_REPLACESEL
};

// Reads the style bits that all edits have, and takes the system font. The three styles that
// dtSetDisplayStyle and its kin set are read too.
void InitEdit(EditBody& body, DWORD style, const EditKind& kind);

// Deletes what the edit owns.
void ReleaseEdit(EditBody& body);

// The font and what depends on it. Neither redraws.
void TakeFont(EditBody& body, HFONT font);
void TakeDisplayStyle(EditBody& body, std::uint32_t displayStyle);

// WM_SETFONT: takes the font, resizes the window to it where it is needed and redraws when asked
// to. Host code may run.
void SetEditFont(const EditKind& kind, HWND window, HFONT font, bool redraw);

// What ...SetDisplayStyle does: 0 plain text, 1 pictures of digits, 2 character cells; any other
// number clears the style bits and nothing else. Redraws. Host code may run.
BOOL SetDisplayStyle(const EditKind& kind, HWND window, std::uint32_t style);

// What ...SetBorderStyle does, the change of the window's size included. Host code may run.
BOOL SetEditBorder(const EditKind& kind, HWND window, std::uint32_t border);

// Where things are in the client area. The right part has no width when it is not shown.
Rect TextAreaOf(HWND window, const EditBody& body, const EditKind& kind);
Rect RightPartOf(HWND window, const EditBody& body, const EditKind& kind);

// A TextMeasure's function whose context is a device context with the font selected.
std::int32_t TextExtent(void* context, const char* text, std::uint32_t count);

// The text as it is shown now, with its measure, for as long as it is needed.
class ShownEdit {
public:
    ShownEdit(const EditKind& kind, const EditBody& body);

    const char* text() const { return text_; }
    std::int32_t length() const;
    const ShownText& shown() const { return shown_; }

private:
    ScreenContext screen_;
    SavedContext saved_{screen_.get()};
    TextBuffer text_;
    ShownText shown_;
};

} // namespace vorn::edit
