// The percent bar's painting.
#include "controls/percentbar/percentbar_win.h"
#include "core/color_win.h"
#include "core/frames_win.h"
#include "core/gdi_win.h"
#include "core/ground_win.h"

#include <algorithm>

namespace vorn::percentbar {
namespace {

constexpr UINT kPercentFormat = DT_SINGLELINE | DT_VCENTER;

struct ResolvedColors {
    COLORREF bar;
    COLORREF text;
    COLORREF highlight;
    COLORREF shadow;
    COLORREF background;
    COLORREF fill;
};

ResolvedColors Resolve(const Colors& colors) {
    return {ResolveColor(colors.bar),        ResolveColor(colors.text),
            ResolveColor(colors.highlight),  ResolveColor(colors.shadow),
            ResolveColor(colors.background), ResolveColor(colors.fill)};
}

// The last column of a fill `width` pixels wide, and beyond it none, also at the ends of the
// 32-bit range.
std::int32_t FillRight(const Rect& bar, std::int32_t width) {
    constexpr std::int64_t kFarthest = 0x3FFFFFFF; // what the platform's rectangles bear
    return static_cast<std::int32_t>(
        std::clamp(std::int64_t{bar.left} + width, -kFarthest, kFarthest));
}

void DrawBar(HDC context, const Record& record, const ResolvedColors& colors, const Rect& bar) {
    const State& state = record.state;
    FillWithColor(context, bar, colors.bar);

    char text[16];
    int length = 0;
    Rect textRect = bar;
    if (state.percent != 0) {
        SelectObject(context, record.percentFont);
        SetBkMode(context, TRANSPARENT);
        length = wsprintfA(text, "%i%%", Percentage(state.progress, state.limit));
        RECT measured{};
        DrawTextA(context, text, length, &measured, kPercentFormat | DT_CALCRECT);
        const LONG width = measured.right - measured.left;
        textRect.left = bar.left + (Width(bar) - width) / 2;
        textRect.right = textRect.left + width;
        RECT whole = ToPlatform(textRect);
        SetTextColor(context, colors.fill);
        DrawTextA(context, text, length, &whole, kPercentFormat);
    }

    const std::int32_t fillWidth = FillWidth(Width(bar), state.progress, state.limit);
    if (fillWidth == 0) {
        return;
    }
    const std::int32_t fillRight = FillRight(bar, fillWidth);
    FillWithColor(context, {bar.left, bar.top, fillRight, bar.bottom}, colors.fill);
    if (state.percent != 0 && textRect.left < fillRight) {
        RECT overFill = {textRect.left, textRect.top, fillRight, textRect.bottom};
        SetTextColor(context, colors.bar);
        DrawTextA(context, text, length, &overFill, kPercentFormat);
    }
}

void DrawBorder(HDC context, std::uint32_t borderStyle, const FrameColors& colors,
                const Rect& bar) {
    switch (borderStyle) {
    case kBorderLine:
        DrawOutline(context, Grown(bar, 1), GetSysColor(COLOR_WINDOWFRAME));
        break;
    case kBorderRaised:
        DrawRaisedFrame(context, Grown(bar, 2), colors);
        break;
    case kBorderSunken:
        DrawSunkenFrame(context, Grown(bar, 2), colors);
        break;
    default:
        break;
    }
}

void DrawScale(HDC context, HFONT font, COLORREF color, const Rect& bar) {
    SelectObject(context, font);
    SetTextColor(context, color);
    SetBkMode(context, TRANSPARENT);
    for (int label = 0; label < kScaleLabels; ++label) {
        const int value = label * 10;
        char text[8];
        const int length = wsprintfA(text, "%i", value);
        SIZE size{};
        GetTextExtentPoint32A(context, text, length, &size);
        TextOutA(context, bar.left + ScaleLabelOffset(value, Width(bar), size.cx),
                 bar.bottom + kScaleLabelGap, text, length);
    }
}

void DrawColumn(HDC context, int x, int top, int bottom) {
    MoveToEx(context, x, top, nullptr);
    LineTo(context, x, bottom);
}

void DrawTicks(HDC context, const Rect& bar) {
    SelectObject(context, GetStockObject(DC_PEN));
    SetDCPenColor(context, GetSysColor(COLOR_WINDOWFRAME));
    for (const std::int32_t column : LongTicks(Width(bar))) {
        DrawColumn(context, bar.left + column, bar.top, bar.bottom);
    }
    for (const std::int32_t column : ShortTicks(Width(bar))) {
        DrawColumn(context, bar.left + column, bar.bottom - kShortTickHeight, bar.bottom);
    }
}

} // namespace

Rect MeasureBar(HWND window, const Record& record) {
    ScaleFontMetrics metrics{};
    if (record.state.scaleText != 0) {
        const TEXTMETRICA font = MeasureFont(record.scaleFont);
        metrics = {font.tmHeight, font.tmAscent, font.tmInternalLeading, font.tmMaxCharWidth};
    }
    return BarRectangle(ClientRect(window), record.state, metrics);
}

void Draw(HWND window, const OffscreenPaint& offscreen) {
    const Record* record = RecordOf<Record>(window);
    const ResolvedColors colors = Resolve(record->state.colors);
    const HDC context = offscreen.context();
    SetTextColor(context, colors.text);
    // What the parent does to the context's colours counts, too.
    HBRUSH answer = AskForBrush(window, context, WM_CTLCOLORDLG);

    record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    const COLORREF scaleColor = GetTextColor(context);
    const COLORREF outerColor = GetBkColor(context);
    const Rect bar = MeasureBar(window, *record);
    FillWithGround(context, ClientRect(window), GroundOf(answer, context, colors.background));
    DrawBar(context, *record, colors, bar);
    DrawBorder(context, record->state.borderStyle, {colors.shadow, colors.highlight, outerColor},
               bar);
    if (record->state.scaleText != 0) {
        DrawScale(context, record->scaleFont, scaleColor, bar);
    }
    if (record->state.tickMarks != 0) {
        DrawTicks(context, bar);
    }
}

} // namespace vorn::percentbar
