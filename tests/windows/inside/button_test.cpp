// The picture button's bitmaps: which it has, without them, and after it.
#include "controls/button/button_win.h"
#include "core/record_win.h"
#include "tests/windows/support/host_window.h"
#include "tests/windows/support/pixels.h"

#include <gtest/gtest.h>
#include <vorn32.h>

namespace vorn::button {
namespace {

HWND Create(test::HostWindow& host, DWORD style) {
    HWND button = host.Create(VORN_BUTTON_CLASS, style, 10, 20, 60, 30);
    UpdateWindow(button);
    return button;
}

SIZE SizeOf(HBITMAP bitmap) {
    BITMAP header{};
    GetObjectA(bitmap, sizeof header, &header);
    return {header.bmWidth, header.bmHeight};
}

TEST(ButtonBitmaps, GoByTheStyleAtCreation) {
    test::HostWindow host;
    for (const DWORD style : {DWORD{0}, DWORD{VBTS_PICTURE}, DWORD{VBTS_SWATCH}}) {
        const Record* record = RecordOf<Record>(Create(host, style));
        EXPECT_EQ(SizeOf(record->strip).cx, 17 * 20);
        EXPECT_EQ(SizeOf(record->strip).cy, 20);
        EXPECT_EQ(SizeOf(record->hostAppPicture).cx, 20);
        EXPECT_EQ(SizeOf(record->hostAppPicture).cy, 20);
    }
    for (const DWORD style : {DWORD{VBTS_PICTUREONLY}, DWORD{VBTS_PICTUREONLY | VBTS_PICTURE}}) {
        const Record* record = RecordOf<Record>(Create(host, style));
        EXPECT_EQ(SizeOf(record->strip).cx, 32 * 16);
        EXPECT_EQ(SizeOf(record->strip).cy, 15);
        EXPECT_EQ(record->hostAppPicture, nullptr);
    }
}

TEST(ButtonBitmaps, GoWithTheWindow) {
    test::HostWindow host;
    HWND button = Create(host, VBTS_PICTURE);
    const Record record = *RecordOf<Record>(button);
    DestroyWindow(button);
    EXPECT_EQ(GetObjectType(record.strip), 0u);
    EXPECT_EQ(GetObjectType(record.hostAppPicture), 0u);
}

TEST(ButtonBitmaps, ThatAreMissingDrawNothing) {
    test::HostWindow host;
    for (const bool inHostApp : {false, true}) {
        host.answer = [=](const test::Message& message) -> std::optional<LRESULT> {
            return message.message == VORN_WM_IS_HOST_APP && inHostApp
                       ? std::optional<LRESULT>(VORN_HOST_APP_YES)
                       : std::nullopt;
        };
        HWND plain = Create(host, 0);
        const test::Pixels expected = test::PixelsOf(plain);
        DestroyWindow(plain);

        HWND button = Create(host, VBTS_PICTURE);
        EXPECT_NE(test::PixelsOf(button), expected) << "there is a picture to miss";
        Record* record = RecordOf<Record>(button);
        DeleteObject(record->strip);
        DeleteObject(record->hostAppPicture);
        record->strip = record->hostAppPicture = nullptr;
        InvalidateRect(button, nullptr, FALSE);
        UpdateWindow(button);
        EXPECT_EQ(test::Difference(expected, test::PixelsOf(button)), "");
        DestroyWindow(button);
    }
}

} // namespace
} // namespace vorn::button
