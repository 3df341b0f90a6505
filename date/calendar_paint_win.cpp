// The year calendar's painting.
#include "core/gdi_win.h"
#include "core/names.h"
#include "core/text.h"
#include "date/calendar_win.h"

#include <cstring>

namespace vorn::calendar {
namespace {

// A highlight of this colour could not be told from a grey face.
constexpr COLORREF kGrayHighlight = RGB(192, 192, 192);

HFONT SystemFont() {
    return static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
}

// The font of the days, for as long as it is needed.
class SmallFont {
public:
    explicit SmallFont(LONG systemHeight)
        : font_(CreateFamilyFont("Arial", 0x32, systemHeight * 7 / 10, FW_NORMAL)) {}
    ~SmallFont() { DeleteObject(font_); }
    SmallFont(const SmallFont&) = delete;
    SmallFont& operator=(const SmallFont&) = delete;

    HFONT get() const { return font_; }

private:
    HFONT font_;
};

// How a piece of text is coloured, background included.
struct Ink {
    COLORREF background;
    COLORREF text;
};

struct Inks {
    Ink title;
    Ink ordinary;
    Ink selected;
};

Inks ResolveInks() {
    const COLORREF highlight = GetSysColor(COLOR_HIGHLIGHT);
    return {{GetSysColor(COLOR_ACTIVECAPTION), GetSysColor(COLOR_CAPTIONTEXT)},
            {GetSysColor(COLOR_BTNFACE), GetSysColor(COLOR_WINDOWTEXT)},
            highlight == kGrayHighlight ? Ink{RGB(0, 0, 0), RGB(255, 255, 255)}
                                        : Ink{highlight, GetSysColor(COLOR_HIGHLIGHTTEXT)}};
}

// One paint: where to, what, and which part of it.
struct Canvas {
    HDC context;
    RECT area;
    Layout layout;
    Inks inks;
};

bool NeedsPaint(const Canvas& canvas, const Rect& rect) {
    const RECT platform = ToPlatform(rect);
    RECT common{};
    return IntersectRect(&common, &platform, &canvas.area) != 0;
}

// Fills the rectangle and writes in it, never outside.
void WriteAt(HDC context, int x, const Rect& rect, const Ink& ink, const char* text, int length) {
    const RECT clip = ToPlatform(rect);
    SetBkColor(context, ink.background);
    SetTextColor(context, ink.text);
    ExtTextOutA(context, x, rect.top, ETO_OPAQUE | ETO_CLIPPED, &clip, text,
                static_cast<UINT>(length), nullptr);
}

void WriteCentered(const Canvas& canvas, const Rect& rect, const Ink& ink, const char* text,
                   int length) {
    SIZE size{};
    GetTextExtentPoint32A(canvas.context, text, length, &size);
    WriteAt(canvas.context, rect.left + (Width(rect) - size.cx) / 2, rect, ink, text, length);
}

void DrawTitle(const Canvas& canvas, int panel) {
    const Rect rect = TitleRectangle(canvas.layout, panel);
    if (NeedsPaint(canvas, rect)) {
        const char* name = names.monthNames[panel];
        WriteAt(canvas.context, rect.left + kTitleIndent, rect, canvas.inks.title, name,
                static_cast<int>(std::strlen(name)));
    }
}

void DrawWeekdays(const Canvas& canvas, int panel) {
    for (int weekday = 0; weekday < kWeekdays; ++weekday) {
        const Rect rect = WeekdayRectangle(canvas.layout, panel, weekday);
        // A host may have set fewer than seven initials.
        const char* initial = &names.weekdayInitials[weekday];
        if (NeedsPaint(canvas, rect)) {
            WriteCentered(canvas, rect, canvas.inks.ordinary, initial, *initial == '\0' ? 0 : 1);
        }
    }
}

void DrawDays(const Canvas& canvas, std::uint16_t year, int panel, Place selected) {
    const MonthDays days = DaysOf(year, panel);
    for (int cell = 0; cell < kCells; ++cell) {
        const std::uint16_t day = DayInCell(days, cell);
        const Rect rect = CellRectangle(canvas.layout, panel, cell);
        if (day == 0 || !NeedsPaint(canvas, rect)) {
            continue;
        }
        char buffer[4];
        TextBuilder text = StartText(buffer);
        AppendNumber(text, day, 1);
        const bool isSelected = selected == Place{panel, cell};
        WriteCentered(canvas, rect, isSelected ? canvas.inks.selected : canvas.inks.ordinary,
                      buffer, static_cast<int>(text.length));
    }
}

void DrawGroove(const Canvas& canvas, int panel) {
    const Groove groove = GrooveOf(canvas.layout, panel);
    const COLORREF shadow = GetSysColor(COLOR_BTNSHADOW);
    const COLORREF highlight = GetSysColor(COLOR_BTNHIGHLIGHT);
    FillWithColor(canvas.context, groove.shadowRight, shadow);
    FillWithColor(canvas.context, groove.shadowBottom, shadow);
    FillWithColor(canvas.context, groove.highlightRight, highlight);
    FillWithColor(canvas.context, groove.highlightBottom, highlight);
}

LineHeights HeightsOf(LONG systemHeight, HFONT small) {
    return {systemHeight, MeasureFont(small).tmHeight};
}

} // namespace

Layout MeasureCalendar(HWND window) {
    const LONG systemHeight = MeasureFont(SystemFont()).tmHeight;
    const SmallFont small(systemHeight);
    return MakeLayout(ClientRect(window), HeightsOf(systemHeight, small.get()));
}

void Draw(HWND window, const OffscreenPaint& offscreen) {
    const LONG systemHeight = MeasureFont(SystemFont()).tmHeight;
    const SmallFont small(systemHeight);
    const Canvas canvas = {offscreen.context(), offscreen.area(),
                           MakeLayout(ClientRect(window), HeightsOf(systemHeight, small.get())),
                           ResolveInks()};
    const date::Date selection = SelectionOf(window);
    const std::uint16_t year = ShownYear(selection, CurrentYear());
    const Place selected = PlaceOf(selection);

    const SavedContext saved(canvas.context);
    FillWithColor(canvas.context, FromPlatform(canvas.area), canvas.inks.ordinary.background);
    for (int panel = 0; panel < kPanels; ++panel) {
        if (!NeedsPaint(canvas, PanelRectangle(canvas.layout, panel))) {
            continue;
        }
        SelectObject(canvas.context, SystemFont());
        DrawTitle(canvas, panel);
        SelectObject(canvas.context, small.get());
        DrawWeekdays(canvas, panel);
        DrawDays(canvas, year, panel, selected);
        DrawGroove(canvas, panel);
    }
}

} // namespace vorn::calendar
