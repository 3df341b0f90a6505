// Any keys, pastes, texts and interventions of the host: after each, caret and selection are in the
// text, the current field is the caret's, text and field starts agree, and what the user changed is
// a time.
#include "timeedit/time_clipboard.h"
#include "timeedit/time_format.h"
#include "timeedit/time_keys.h"
#include "timeedit/time_parse.h"
#include "timeedit/time_settings.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

using namespace vorn;
using namespace vorn::timeedit;
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
    std::uint16_t Word() { return static_cast<std::uint16_t>(Byte() * 256 + Byte()); }
    std::string Text(std::size_t longest) {
        std::string text(Byte() % (longest + 1), '\0');
        for (char& character : text) {
            character = static_cast<char>(Byte());
        }
        return text;
    }
};

bool IsTime(const Time& time) {
    return time.hour <= 23 && time.minute <= 59 && time.second <= 59;
}

bool Changes(const edit::Actions& actions) {
    return std::any_of(actions.begin(), actions.end(), [](const edit::Action& action) {
        return action.kind == ActionKind::SendChanged;
    });
}

// A change is told as a whole and in order.
void CheckActions(const edit::Actions& actions) {
    Require(actions.count <= actions.items.size());
    for (std::size_t index = 0; index < actions.count; ++index) {
        const edit::Action* action = &actions.items[index];
        if (action->kind == ActionKind::SendChanged) {
            Require(index + 4 < actions.count);
            Require(action[1] == edit::Action{ActionKind::Notify, edit::kUpdate});
            Require(action[3] == edit::Action{ActionKind::Notify, edit::kChange});
            Require(action[4].kind == ActionKind::PlaceCaret);
        }
    }
}

void CheckEntry(const TimeEntry& entry) {
    const std::string text = entry.time.valueText;
    HeldTime again = entry.time;
    FormatValueText(again);
    Require(text == again.valueText);
    Require(entry.time.null == 0 || text.empty());

    const edit::FieldMap map = FieldMapOf(entry.time);
    Require(static_cast<std::size_t>(map.length) == text.size());
    Require(map.count >= 2 && map.count <= edit::kMostFields);
    for (std::int32_t field = 1; field < map.count; ++field) {
        Require(map.starts[field] > map.starts[field - 1]);
        if (entry.time.null == 0) {
            const char before = text[static_cast<std::size_t>(map.starts[field]) - 1];
            Require(before == (KindOf(entry.time, field) == FieldKind::Suffix
                                   ? ' '
                                   : SeparatorOf(entry.time.format)));
        }
    }
    const edit::FieldCaret& caret = entry.caret;
    Require(caret.selectionStart <= caret.selectionEnd && caret.selectionEnd <= text.size());
    Require(caret.index <= text.size() && caret.firstVisible <= text.size());
    Require(caret.field >= 0 && caret.field < map.count);
}

struct Session {
    TimeEntry entry;
    char clipboard[kValueTextSize] = {};

    void Check(const TimeEntry& before, const edit::Actions& actions) {
        CheckActions(actions);
        CheckEntry(entry);
        if (Changes(actions)) {
            Require(entry.modified != 0);
            Require(entry.time.null != 0 || IsTime(entry.time.value));
            Require(entry.time.null != 0 || entry.time.am == (entry.time.value.hour < 12 ? 1 : 0));
        } else {
            Require(entry.time.value == before.time.value && entry.time.null == before.time.null);
            Require(entry.modified == before.modified);
        }
    }

    void Key(std::uint8_t code, std::uint8_t flags) {
        const edit::Key key = {code, (flags & 1) != 0, (flags & 2) != 0, (flags & 4) != 0};
        const bool allowed = (flags & 8) == 0;
        if (RouteKey(key, (flags & 16) != 0) != edit::KeyRoute::Ask) {
            return;
        }
        const TimeEntry before = entry;
        const edit::Actions actions = RunKey(entry, key, allowed);
        Check(before, actions);
        if (!allowed) {
            Require(actions.count == 1 && actions.items[0].kind == ActionKind::Beep);
        }
        Perform(actions);
    }

    // What the clipboard does, with itself.
    void Perform(const edit::Actions& actions) {
        for (const edit::Action& action : actions) {
            if (action.kind == ActionKind::Copy || action.kind == ActionKind::Cut) {
                edit::CopySelected(clipboard, entry.time.valueText, entry.caret);
            }
            const TimeEntry before = entry;
            edit::Actions more;
            if (action.kind == ActionKind::Cut) {
                ClearSelection(more, entry);
            } else if (action.kind == ActionKind::Paste) {
                PasteText(more, entry, clipboard);
            }
            Check(before, more);
        }
    }

    void ReadText(Input& input) {
        const std::string text = input.Text(80);
        const bool stored = ReadTimeText(entry.time, text.c_str());
        Require(stored || !text.empty());
        Require(!ReadTimeText(entry.time, text.c_str()) || text.c_str()[0] == '\0');
        ResetCaret(entry);
        RenewText(entry);
    }

    void TakeParams(Input& input) {
        EditParams params = {};
        params.setTime = input.Byte() & 1;
        params.keepFormat = input.Byte() & 1;
        params.time = {input.Word(), input.Word(), input.Word()};
        params.separator = input.Word();
        params.leadingZero = input.Byte() & 1;
        params.twentyFourHour = input.Byte() & 1;
        params.showSeconds = input.Byte() & 1;
        for (char& character : params.amText) {
            character = static_cast<char>(input.Byte());
        }
        for (char& character : params.pmText) {
            character = static_cast<char>(input.Byte());
        }
        if (SetEditParams(entry.time, params, (input.Byte() & 1) != 0)) {
            ResetCaret(entry);
        }
        RenewText(entry);
    }

    void Intervene(Input& input) {
        switch (input.Byte() % 8) {
        case 0:
            StoreTime(entry.time, {input.Word(), input.Word(), input.Word()});
            ResetCaret(entry);
            RenewText(entry);
            break;
        case 1:
            entry.time.null = 1;
            ResetCaret(entry);
            RenewText(entry);
            break;
        case 2:
            EnterFocus(entry);
            break;
        case 3:
            LeaveFocus(entry);
            break;
        case 4:
            ReadText(input);
            break;
        case 5:
            TakeParams(input);
            break;
        case 6:
            std::strncpy(clipboard, input.Text(sizeof clipboard - 1).c_str(), sizeof clipboard - 1);
            break;
        default: // a host's selection and scrolling
            PutCaret(entry.caret, FieldMapOf(entry.time), input.Byte() % 32);
            edit::Select(entry.caret, input.Byte() % 32, input.Byte() % 32, entry.caret.index,
                         FieldMapOf(entry.time).length);
            break;
        }
        CheckEntry(entry);
    }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // The keys that do something come more often than by chance.
    constexpr std::uint8_t kKeys[] = {8,   32,  35,  36,  37, 38, 39, 40, 45,  46,  48,
                                      49,  50,  51,  52,  53, 57, 96, 97, 105, 'A', 'P',
                                      'C', 'V', 'X', 190, 9,  37, 39, 48, 49,  50};
    Input input = {data, size};
    Session session;
    Format& format = session.entry.time.format;
    const std::uint8_t flags = input.Byte();
    format.leadingZero = flags & 1;
    format.twentyFourHour = flags & 2;
    format.showSeconds = flags & 4;
    if ((flags & 8) == 0) {
        std::strcpy(format.amText, "AM");
        std::strcpy(format.pmText, (flags & 16) != 0 ? "" : "PM");
    }
    StoreTime(session.entry.time, {11, 59, 30});
    EnterFocus(session.entry);
    for (int step = 0; step < kMostSteps && input.size > 0; ++step) {
        const std::uint8_t choice = input.Byte();
        if (choice < 16) {
            session.Intervene(input);
        } else if (choice < 48) {
            const std::uint8_t code = input.Byte();
            session.Key(code, input.Byte());
        } else {
            session.Key(kKeys[choice % 32], choice >= 208 ? 4 : choice >= 176 ? 1 : 0);
        }
    }
    return 0;
}
