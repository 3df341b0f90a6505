// Any keys, pastes and interventions of the host: after each the date exists or is null, caret and
// selection are in the text, the current field is the caret's, and texts and field starts agree.
#include "date/date_clipboard.h"
#include "date/date_keys.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

using namespace vorn;
using namespace vorn::date;
using edit::ActionKind;

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

constexpr Date kToday = {2, 29, 2028};

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
};

// What is promised of this entry.
struct Promise {
    bool plain;       // a separator that divides what is typed, and all three kinds
    bool yearOutside; // the year is first or last, so that the caret knows both separators
    bool exists;      // the numbers are a date, or one of the skipped days
};

bool IsPlainSeparator(char character) {
    return character != '\0' && character != ' ' && (character < '0' || character > '9');
}

bool HasEveryKind(const Layout& layout) {
    for (const std::int32_t kind : {kDay, kMonth, kYear}) {
        if (std::count(layout.kinds, layout.kinds + kPositions, kind) != 1) {
            return false;
        }
    }
    return true;
}

// The one way to numbers that are no date: month or year, typed or stepped, lead to September 1752
// with a day that is not in it.
bool IsAllowed(const Date& date) {
    return IsValidDate(date) || IsSkippedDay(date);
}

std::string EditText(const HeldDate& date) {
    char text[kLongestEditText + 1];
    FormatEditText(text, date);
    return text;
}

void CheckCaret(const DateEntry& entry) {
    const auto length = EditText(entry.date).size();
    const edit::FieldCaret& caret = entry.caret;
    Require(caret.selectionStart <= caret.selectionEnd && caret.selectionEnd <= length);
    Require(caret.index <= length && caret.firstVisible <= length);
    Require(caret.field >= 0 && caret.field < kPositions);
}

// The starts of the fields as the text has its separators.
void CheckStarts(const HeldDate& date) {
    const std::string text = EditText(date);
    const edit::FieldMap map = FieldMapOf(date);
    const auto first = text.find(date.layout.separator);
    const auto second = text.find(date.layout.separator, first + 1);
    Require(second != std::string::npos);
    Require(static_cast<std::size_t>(map.starts[1]) == first + 1);
    Require(static_cast<std::size_t>(map.starts[2]) == second + 1);
    Require(static_cast<std::size_t>(map.length) == text.size());
}

void CheckTexts(const DateEntry& entry) {
    HeldDate again = entry.date;
    FormatValueText(again);
    Require(std::strcmp(again.valueText, entry.date.valueText) == 0);
    Require(entry.date.null == 0 || entry.date.valueText[0] == '\0');
}

// The field is the caret's. Home is the exception: what it goes to may be scrolled, and the first
// field becomes current all the same; so is a null date, which has no text.
void CheckField(const DateEntry& entry, bool afterHome) {
    const edit::FieldMap map = FieldMapOf(entry.date);
    Require(entry.date.null != 0 || afterHome ||
            entry.caret.field == FieldAt(map, entry.caret.index));
}

// A change is told as a whole and in order; nothing else is.
void CheckActions(const edit::Actions& actions, bool keyStep) {
    Require(actions.count <= actions.items.size());
    for (std::size_t index = 0; index < actions.count; ++index) {
        const edit::Action* action = &actions.items[index];
        if (action->kind == ActionKind::SendChanged) {
            Require(index + 4 < actions.count);
            Require(action[1] == edit::Action{ActionKind::Notify, edit::kUpdate});
            Require(action[2].kind == ActionKind::Repaint ||
                    action[2].kind == ActionKind::RepaintText);
            Require(action[3] == edit::Action{ActionKind::Notify, edit::kChange});
            Require(action[4].kind == ActionKind::PlaceCaret);
        }
    }
    Require(!keyStep || actions.items[actions.count - 1].kind == ActionKind::PostChanged);
}

bool Changes(const edit::Actions& actions) {
    return std::any_of(actions.begin(), actions.end(), [](const edit::Action& action) {
        return action.kind == ActionKind::SendChanged;
    });
}

struct Session {
    DateEntry entry;
    Promise promise{};
    bool afterHome = false;

    // From a layout or numbers that a host set.
    void Renew() {
        HeldDate& date = entry.date;
        promise.plain = IsPlainSeparator(date.layout.separator) && HasEveryKind(date.layout);
        promise.yearOutside = date.layout.kinds[1] != kYear;
        promise.exists = IsAllowed(date.value);
        FormatValueText(date);
        KeepCaretInText(entry);
        PutCaret(entry.caret, FieldMapOf(date), entry.caret.index);
        afterHome = false;
    }

    void Check(const DateEntry& before, const edit::Actions& actions, bool keyStep) {
        CheckActions(actions, keyStep);
        CheckCaret(entry);
        CheckTexts(entry);
        if (Changes(actions)) {
            Require(entry.modified != 0);
        } else {
            Require(entry.date.value == before.date.value && entry.date.null == before.date.null);
            Require(entry.modified == before.modified);
        }
        if (!promise.plain) {
            return;
        }
        Require(!promise.exists || IsAllowed(entry.date.value));
        if (promise.exists && promise.yearOutside && entry.date.null == 0) {
            CheckStarts(entry.date);
            CheckField(entry, afterHome);
        }
    }

    void Key(std::uint8_t code, std::uint8_t flags) {
        const edit::Key key = {code, (flags & 1) != 0, (flags & 2) != 0, (flags & 4) != 0};
        const bool allowed = (flags & 8) == 0;
        if (RouteKey(key, (flags & 16) != 0) != edit::KeyRoute::Ask) {
            return;
        }
        const DateEntry before = entry;
        const edit::KeyCommand command = CommandOf(key);
        const edit::Actions actions = RunKey(entry, key, allowed, kToday);
        // After Home the field follows the caret again once a digit or deletion put it, a step
        // selected it, or End did.
        if (allowed &&
            (command == edit::KeyCommand::Home || command == edit::KeyCommand::ExtendHome)) {
            afterHome = true;
        } else if (Changes(actions) || command == edit::KeyCommand::End ||
                   command == edit::KeyCommand::ExtendEnd) {
            afterHome = afterHome && !allowed;
        }
        Check(before, actions, allowed && command != edit::KeyCommand::None);
        if (!allowed) {
            Require(actions.count == 1 && actions.items[0].kind == ActionKind::Beep);
        }
        Perform(actions);
    }

    // What the clipboard does, with itself.
    void Perform(const edit::Actions& actions) {
        for (const edit::Action& action : actions) {
            if (action.kind == ActionKind::Copy || action.kind == ActionKind::Cut) {
                char text[kWorkTextSize];
                FormatEditText(text, entry.date);
                edit::CopySelected(clipboard, text, entry.caret);
                Require(
                    std::strlen(clipboard) ==
                    std::min<std::size_t>(sizeof clipboard - 1u,
                                          static_cast<std::size_t>(entry.caret.selectionEnd -
                                                                   entry.caret.selectionStart)));
            }
            const DateEntry before = entry;
            edit::Actions more;
            if (action.kind == ActionKind::Cut) {
                ClearSelection(more, entry);
            } else if (action.kind == ActionKind::Paste) {
                PasteText(more, entry, clipboard, kToday);
                Require(!Changes(more) || IsValidDate(entry.date.value));
            }
            afterHome = afterHome && !Changes(more);
            Check(before, more, false);
        }
    }

    void Intervene(Input& input) {
        const std::uint8_t what = input.Byte();
        HeldDate& date = entry.date;
        if ((what & 1) != 0) { // a date, or what is none, without a word about the caret
            date.value = {static_cast<std::uint16_t>(input.Byte() % 14),
                          static_cast<std::uint16_t>(input.Byte() % 33),
                          static_cast<std::uint16_t>(input.Byte() * 256 + input.Byte())};
        }
        if ((what & 2) != 0) {
            date.null = what & 4;
        }
        if ((what & 8) != 0) {
            (what & 16) != 0 ? EnterFocus(entry) : LeaveFocus(entry);
        }
        if ((what & 32) != 0) {
            entry.caret.firstVisible = input.Byte() % 24;
        }
        if ((what & 64) != 0) {
            const std::uint8_t size = std::min<std::uint8_t>(input.Byte() % 24, 23);
            for (std::uint8_t index = 0; index < size; ++index) {
                clipboard[index] = static_cast<char>(input.Byte());
            }
            clipboard[size] = '\0';
        }
        Renew();
    }

    char clipboard[24] = {};
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // The keys that do something come more often than by chance.
    constexpr std::uint8_t kKeys[] = {8,   32,  35, 36, 37, 38, 39, 40, 45,  46,  48,
                                      49,  50,  51, 52, 53, 57, 96, 97, 105, 'C', 'V',
                                      'X', 191, 9,  37, 37, 39, 39, 48, 49,  50};
    Input input = {data, size};
    Session session;
    HeldDate& date = session.entry.date;
    const std::uint8_t flags = input.Byte();
    date.layout.monthLeadingZero = flags & 1;
    date.layout.dayLeadingZero = flags & 2;
    date.layout.fourDigitYear = flags & 4;
    const std::uint8_t kinds = input.Byte();
    constexpr std::int32_t kOrders[6][kPositions] = {{1, 2, 3}, {2, 1, 3}, {3, 1, 2},
                                                     {3, 2, 1}, {1, 3, 2}, {2, 3, 1}};
    for (int position = 0; position < kPositions; ++position) {
        date.layout.kinds[position] =
            (flags & 8) != 0 ? kinds >> 2 * position & 3 : kOrders[kinds % 6][position];
    }
    date.layout.separator = (flags & 16) != 0 ? static_cast<char>(input.Byte()) : '/';
    date.value = (flags & 32) != 0 ? Date{9, 2, 1752} : Date{3, 31, 1996};
    EnterFocus(session.entry);
    session.Renew();
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
