// The picture button's painting.
#include "controls/button/button_win.h"
#include "core/color_win.h"
#include "core/frames_win.h"
#include "core/gdi_win.h"
#include "core/transparent_blit_win.h"
#include "core/window_win.h"

namespace vorn::button {
namespace {

constexpr UINT kCaptionFormat = DT_CENTER | DT_VCENTER | DT_SINGLELINE;

static_assert(kStyleDisabled == WS_DISABLED);

// Whether what is drawn depends on the host application.
bool DependsOnHostApp(const Record& record, DWORD style) {
    const bool ownPicture = (style & kStylePictureOnly) != 0 && record.userBitmap != nullptr;
    return (style & kStylePicture) != 0 && !ownPicture;
}

PictureChoice ChoiceOf(const Record& record, bool inHostApp) {
    PictureChoice choice = {record.state.pictureIndex, record.userBitmap != nullptr, {}, inHostApp};
    BITMAP header{};
    if (GetObjectA(record.userBitmap, sizeof header, &header) != 0) {
        choice.user = {header.bmWidth, header.bmHeight};
    }
    return choice;
}

HBITMAP BitmapOf(const Record& record, PictureSource source) {
    switch (source) {
    case PictureSource::Strip:
        return record.strip;
    case PictureSource::User:
        return record.userBitmap;
    case PictureSource::HostApp:
        return record.hostAppPicture;
    case PictureSource::None:
        break;
    }
    return nullptr;
}

FrameColors Resolve(const FrameCodes& codes) {
    return {ResolveColor(codes.a), ResolveColor(codes.b), ResolveColor(codes.c)};
}

void DrawPicture(HDC context, const Record& record, const Layout& layout) {
    const Colors& colors = record.state.colors;
    DrawTransparentBitmap(context, layout.pictureTarget, BitmapOf(record, layout.picture),
                          layout.pictureOrigin, ResolveColor(colors.face));
    if (layout.hasSwatch) {
        FillWithColor(context, layout.swatch, ResolveColor(colors.swatch));
        DrawSunkenFrame(context, layout.swatchFrame, Resolve(SwatchFrameColors(colors)));
    }
}

Size MeasureCaption(HDC context, const char* text, const Rect& area) {
    RECT measured = ToPlatform(area);
    DrawTextA(context, text, -1, &measured, kCaptionFormat | DT_CALCRECT);
    return {measured.right - measured.left, measured.bottom - measured.top};
}

void DrawCaption(HDC context, const State& state, DWORD style, const Rect& client,
                 std::int32_t captionLeft) {
    const char* text = state.caption.data();
    SetBkMode(context, TRANSPARENT);
    const Size measured = MeasureCaption(context, text, CaptionArea(client, captionLeft));
    const Caption caption = PlanCaption(client, captionLeft, measured, style, state);
    for (std::size_t i = 0; i < caption.passCount; ++i) {
        RECT rect = ToPlatform(caption.passes[i].rect);
        SetTextColor(context, ResolveColor(caption.passes[i].color));
        DrawTextA(context, text, -1, &rect, kCaptionFormat);
    }
    if (caption.hasFocusRect) {
        const RECT rect = ToPlatform(caption.focusRect);
        DrawFocusRect(context, &rect);
    }
}

void DrawEdge(HDC context, const State& state, DWORD style, const Rect& client) {
    DrawOutline(context, client, ResolveColor(OutlineColor(style, state.colors)));
    const FrameColors colors = Resolve(FaceFrameColors(state.colors));
    if (IsDown(state)) {
        DrawSunkenFrame(context, FaceFrame(client), colors);
    } else {
        DrawRaisedFrame(context, FaceFrame(client), colors);
    }
}

} // namespace

void Draw(HWND window, const OffscreenPaint& offscreen) {
    const Record* record = RecordOf<Record>(window);
    const bool inHostApp = DependsOnHostApp(*record, StyleOf(window)) && IsInHostApp(window);

    record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    const HDC context = offscreen.context();
    const DWORD style = StyleOf(window);
    const Rect client = ClientRect(window);
    const Layout layout = LayOut(client, style, ChoiceOf(*record, inHostApp));
    SelectObject(context, record->font);
    FillWithColor(context, client, ResolveColor(record->state.colors.face));
    DrawPicture(context, *record, layout);
    DrawCaption(context, record->state, style, client, layout.captionLeft);
    DrawEdge(context, record->state, style, client);
}

} // namespace vorn::button
