// Any characters, keys, steps, pastes and interventions of the host: after each, text, caret and
// selection are within their bounds, the number is null exactly when its text is empty, what typing
// left is a number or begins one, and a change is told as a whole and in order.
#include "numeric/number_access.h"
#include "numeric/number_clipboard.h"
#include "numeric/number_draft.h"
#include "numeric/number_keys.h"
#include "numeric/number_spin.h"
#include "numeric/number_typing.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

using namespace vorn;
using namespace vorn::numeric;
using edit::ActionKind;

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

constexpr int kMostSteps = 150; // of a run

struct Input {
    const std::uint8_t* data;
    std::size_t size;

    std::uint8_t Byte() {
        if (size == 0) {
            return 0;
        }
        --size;
        return *data++;
    }
    // Of any sign and size, also infinite and no number.
    double Double() {
        std::uint64_t bits = 0;
        const std::uint8_t form = Byte();
        if ((form & 1) == 0) {
            return static_cast<std::int8_t>(Byte());
        }
        for (int byte = 0; byte < 8; ++byte) {
            bits = bits << 8 | Byte();
        }
        double value = 0;
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }
};

bool Changes(const edit::Actions& actions) {
    return std::any_of(actions.begin(), actions.end(), [](const edit::Action& action) {
        return action == edit::Action{ActionKind::Notify, edit::kChange};
    });
}

void CheckActions(const edit::Actions& actions) {
    Require(actions.count <= actions.items.size());
    for (std::size_t index = 0; index < actions.count; ++index) {
        const edit::Action* action = &actions.items[index];
        if (*action == edit::Action{ActionKind::Notify, edit::kUpdate}) {
            Require(index >= 1 && index + 3 < actions.count);
            Require(action[-1].kind == ActionKind::SendChanged);
            Require(action[1].kind == ActionKind::Repaint ||
                    action[1].kind == ActionKind::RepaintText);
            Require(action[2] == edit::Action{ActionKind::Notify, edit::kChange});
            Require(action[3].kind == ActionKind::PlaceCaret);
        }
    }
}

// Whether a digit somewhere in the text makes it a number, if it is none.
bool IsOrBeginsNumber(const NumberEntry& entry) {
    NumberEntry copy = entry;
    for (std::int32_t index = 0; index <= LengthOf(entry); ++index) {
        edit::Select(copy.caret, index, index, index, LengthOf(entry));
        if (MayBecomeNumber(copy.settings, StartDraft(copy))) {
            return true;
        }
    }
    return false;
}

struct Session {
    NumberEntry entry;
    bool good = true; // whether the text came from here alone

    void CheckBounds() const {
        Require(std::memchr(entry.text, '\0', sizeof entry.text) != nullptr);
        Require(entry.settings.isNull == 0 || entry.text[0] == '\0');
        Require(entry.caret.selectionStart <= entry.caret.selectionEnd);
    }

    void Check(const NumberEntry& before, const edit::Actions& actions) {
        CheckActions(actions);
        CheckBounds();
        const auto length = static_cast<std::size_t>(LengthOf(entry));
        Require(entry.caret.selectionEnd <= length && entry.caret.index <= length);
        Require(entry.caret.firstVisible <= length);
        if (Changes(actions)) {
            Require(entry.modified != 0);
            // A carry out of a lone digit doubles the decimal character.
            const bool doubled = std::strstr(entry.text, "..") != nullptr;
            good = (good && !doubled) || length == 0;
        } else {
            Require(std::strcmp(before.text, entry.text) == 0);
            Require(before.modified == entry.modified);
        }
        Require(!good || length == 0 || IsOrBeginsNumber(entry));
        ReadInteger(entry);
        ReadUnsigned(entry);
        char text[kNumberTextSize];
        Require(ReadLastGoodNumber(entry, text) == 1 && std::strlen(text) < sizeof text);
    }

    void Type(std::uint8_t character, std::uint8_t flags) {
        const NumberEntry before = entry;
        const bool allowed = (flags & 1) == 0;
        const edit::Actions actions =
            TypeCharacter(entry, static_cast<char>(character), (flags & 2) != 0, allowed);
        Check(before, actions);
        Require(static_cast<std::size_t>(LengthOf(entry)) <=
                std::max<std::size_t>(entry.textLimit, std::strlen(before.text)));
        Require(allowed || actions.items[0].kind == ActionKind::Beep);
    }

    void Key(std::uint8_t code, std::uint8_t flags) {
        const edit::Key key = {code, (flags & 1) != 0, false, (flags & 2) != 0};
        const NumberEntry before = entry;
        const edit::Actions actions = RunKey(entry, key, (flags & 4) == 0);
        if (actions.count > 0 && actions.items[0].kind != ActionKind::PassOn) {
            CheckActions(actions);
        }
        for (const edit::Action& action : actions) {
            if (action.kind == ActionKind::Paste) {
                Paste();
            }
            if (action.kind == ActionKind::Copy || action.kind == ActionKind::Cut) {
                CopyNumberText(clipboard, entry);
            }
            if (action.kind == ActionKind::Cut) {
                edit::Actions more;
                ClearSelection(more, entry);
                Check(before, more);
            }
        }
        CheckBounds();
    }

    void Paste() {
        const NumberEntry before = entry;
        edit::Actions actions;
        PasteText(actions, entry, clipboard);
        Check(before, actions);
    }

    void Spin(bool up) {
        const NumberEntry before = entry;
        const edit::Actions actions = StepByMouse(entry, up);
        Require(Changes(actions));
        Check(before, actions);
        Require(LengthOf(entry) < entry.textLimit);
    }

    void Intervene(Input& input) {
        const std::uint8_t what = input.Byte();
        if ((what & 1) != 0) {
            Write(entry, input.Double(), static_cast<Written>(input.Byte() % 4));
            Require(LengthOf(entry) < entry.textLimit);
            good = false;
        }
        if ((what & 2) != 0) {
            char text[80];
            const std::size_t size = input.Byte() % sizeof text;
            for (std::size_t index = 0; index < size; ++index) {
                text[index] = static_cast<char>(input.Byte());
            }
            text[std::min(size, sizeof text - 1)] = '\0';
            SetText(entry, text);
            std::strncpy(clipboard, text, sizeof clipboard - 1);
            good = false;
        }
        if ((what & 4) != 0) {
            entry.settings.rangeCheck = what & 8;
            entry.settings.minValue = input.Double();
            entry.settings.maxValue = input.Double();
        }
        if ((what & 16) != 0) {
            entry.settings.formatKind = input.Byte() % 12;
            entry.settings.decimalDigits = static_cast<std::uint16_t>(input.Byte() % 80);
            entry.settings.displayStyle = input.Byte() % 4;
        }
        if ((what & 32) != 0) {
            SetTextLimit(entry, input.Byte());
        }
        if ((what & 64) != 0) {
            edit::Select(entry.caret, input.Byte() % 70, input.Byte() % 70, input.Byte() % 70, 69);
            entry.caret.firstVisible = input.Byte() % 70;
        }
        if ((what & 128) != 0) {
            SetNull(entry);
            good = true;
        }
        CheckBounds();
    }

    char clipboard[80] = {};
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // The characters and keys that do something come more often than by chance.
    constexpr char kCharacters[] = "0123456789012345.-eE+,.-e0159 x";
    constexpr std::uint8_t kKeys[] = {8,  8,  35, 36, 37, 37,  38, 39,
                                      39, 40, 45, 46, 46, 110, 86, 67};
    Input input = {data, size};
    Session session;
    session.entry.settings.formatKind = input.Byte() % 10;
    session.entry.settings.decimalDigits = input.Byte() % 5;
    const std::uint8_t characters = input.Byte();
    session.entry.settings.decimalChar = (characters & 1) != 0 ? ',' : '.';
    session.entry.settings.thousandChar = (characters & 2) != 0 ? '.' : ',';
    StoreCreationText(session.entry, (characters & 4) != 0 ? "" : "12");
    for (int step = 0; step < kMostSteps && input.size > 0; ++step) {
        const std::uint8_t choice = input.Byte();
        if (choice < 12) {
            session.Intervene(input);
        } else if (choice < 24) {
            session.Spin((choice & 1) != 0);
        } else if (choice < 36) {
            const std::uint8_t code = input.Byte();
            session.Key(code, input.Byte());
        } else if (choice < 48) {
            const std::uint8_t character = input.Byte();
            session.Type(character, input.Byte());
        } else if (choice < 112) {
            session.Key(kKeys[choice % 16], choice >= 96 ? 1 : choice >= 80 ? 2 : 0);
        } else {
            session.Type(static_cast<std::uint8_t>(kCharacters[choice % 31]),
                         choice >= 224 ? 2 : 0);
        }
    }
    return 0;
}
