#include "core/edit/edit_clipboard_win.h"

#include "core/edit/edit_caret_win.h"
#include "core/text.h"

#include <algorithm>
#include <cstring>

namespace vorn::edit {
namespace {

// Longer than anything that an edit takes: a text that fills it is refused.
constexpr std::size_t kPastedTextSize = 256;

// The clipboard, open for as long as it is needed.
class OpenedClipboard {
public:
    explicit OpenedClipboard(HWND window) : opened_(OpenClipboard(window) != 0) {}
    ~OpenedClipboard() {
        if (opened_) {
            CloseClipboard();
        }
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;

    bool isOpen() const { return opened_; }

private:
    bool opened_;
};

HGLOBAL MakeGlobalText(const char* text) {
    const std::size_t size = std::strlen(text) + 1;
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, size);
    void* memory = block == nullptr ? nullptr : GlobalLock(block);
    if (memory == nullptr) {
        GlobalFree(block);
        return nullptr;
    }
    std::memcpy(memory, text, size);
    GlobalUnlock(block);
    return block;
}

bool SetClipboardText(HWND window, const char* text) {
    const OpenedClipboard clipboard(window);
    if (!clipboard.isOpen() || EmptyClipboard() == 0) {
        return false;
    }
    HGLOBAL block = MakeGlobalText(text);
    if (block == nullptr || SetClipboardData(CF_TEXT, block) == nullptr) {
        GlobalFree(block);
        return false;
    }
    return true;
}

// Another program may have left the terminator out.
bool GetClipboardText(HWND window, std::span<char> buffer) {
    const OpenedClipboard clipboard(window);
    HGLOBAL block = clipboard.isOpen() ? GetClipboardData(CF_TEXT) : nullptr;
    const auto* text = block == nullptr ? nullptr : static_cast<const char*>(GlobalLock(block));
    if (text == nullptr) {
        return false;
    }
    CopyText(buffer.first(std::min<std::size_t>(buffer.size(), GlobalSize(block) + 1)), text);
    GlobalUnlock(block);
    return true;
}

} // namespace

bool CopyToClipboard(const EditKind& kind, HWND window) {
    const EditBody* body = kind.bodyOf(window);
    if (body == nullptr) {
        return false;
    }
    TextBuffer copied;
    if (kind.writeCopied != nullptr) {
        kind.writeCopied(*body, copied);
    } else {
        TextBuffer text;
        kind.writeText(*body, text);
        CopySelected(copied, text, *body->caret);
    }
    return copied[0] != '\0' && SetClipboardText(window, copied);
}

void CutToClipboard(const EditKind& kind, HWND window) {
    if (!CopyToClipboard(kind, window)) {
        return;
    }
    EditBody* body = kind.bodyOf(window);
    if (body != nullptr) {
        PerformEdit(kind, window, kind.clearSelection(*body));
    }
}

void PasteFromClipboard(const EditKind& kind, HWND window) {
    char text[kPastedTextSize];
    if (!GetClipboardText(window, text)) {
        return;
    }
    EditBody* body = kind.bodyOf(window);
    if (std::strlen(text) == kPastedTextSize - 1) {
        MessageBeep(MB_ICONHAND);
    } else if (body != nullptr) {
        PerformEdit(kind, window, kind.takeText(*body, text));
    }
}

} // namespace vorn::edit
