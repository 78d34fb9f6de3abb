#include "apps/cadhost/ScriptReader.h"

#include "host/lisp/UpperCase.h"
#include "platform/base/Codepage.h"
#include "platform/base/Messages.h"

#include <charconv>
#include <utility>

namespace {

using Command = ScriptLine::Command;

// The longest wait a script may ask for: a day of virtual time.
constexpr int LongestWait = 24 * 60 * 60 * 1000;

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

std::vector<std::string_view> Words(std::string_view line) {
    std::vector<std::string_view> words;
    std::size_t at = 0;
    while (at < line.size()) {
        while (at < line.size() && IsBlank(line[at])) ++at;
        const std::size_t start = at;
        while (at < line.size() && !IsBlank(line[at])) ++at;
        if (at > start) words.push_back(line.substr(start, at - start));
    }
    return words;
}

bool ReadInt(std::string_view word, int* value) {
    const char* end = word.data() + word.size();
    auto [stop, error] = std::from_chars(word.data(), end, *value);
    return !word.empty() && error == std::errc() && stop == end;
}

std::string_view Trim(std::string_view text) {
    while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
    return text;
}

const std::pair<const char*, Command> pointerCommands[] = {
    {"CLICK", Command::Click},       {"DBLCLICK", Command::DoubleClick},
    {"RCLICK", Command::RightClick}, {"PRESS", Command::Press},
    {"MOVE", Command::Move},         {"RELEASE", Command::Release},
};

const std::pair<const char*, int> keyNames[] = {
    {"ENTER", VK_RETURN},  {"ESCAPE", VK_ESCAPE},  {"TAB", VK_TAB},       {"UP", VK_UP},
    {"DOWN", VK_DOWN},     {"LEFT", VK_LEFT},      {"RIGHT", VK_RIGHT},   {"HOME", VK_HOME},
    {"END", VK_END},       {"PAGEUP", VK_PRIOR},   {"PAGEDOWN", VK_NEXT}, {"INSERT", VK_INSERT},
    {"DELETE", VK_DELETE}, {"BACKSPACE", VK_BACK}, {"SPACE", VK_SPACE},
};

} // namespace

bool ScriptReader::Read(std::string_view text, std::vector<ScriptLine>* lines, std::string* error) {
    int number = 0;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string_view::npos) end = text.size();
        const std::string_view line = text.substr(start, end - start);
        start = end + 1;
        ++number;
        const std::string_view content = Trim(line);
        if (content.empty() || content.front() == '#') continue;
        ScriptLine read;
        read.number = number;
        if (std::optional<std::string> problem = ReadLine(line, &read)) {
            *error = "script line " + std::to_string(number) + ": " + *problem;
            return false;
        }
        lines->push_back(std::move(read));
    }
    return true;
}

std::optional<std::string> ScriptReader::ReadLine(std::string_view line, ScriptLine* out) {
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    const std::vector<std::string_view> words = Words(line);
    const std::string word = host::UpperCase(words.front());
    // What follows the command word and the one blank after it.
    const std::size_t wordEnd = words.front().data() + words.front().size() - line.data();
    const std::string_view rest = line.substr(std::min(wordEnd + 1, line.size()));

    for (const auto& [name, command] : pointerCommands) {
        if (word != name) continue;
        out->command = command;
        if (!ReadPointer(words, false, out)) return std::string(words.front()) + " wants [@ID] X Y";
        return std::nullopt;
    }
    if (word == "WHEEL") {
        out->command = Command::Wheel;
        if (!ReadPointer(words, true, out)) return std::string("wheel wants [@ID] X Y DELTA");
    } else if (word == "KEY") {
        out->command = Command::Key;
        if (words.size() < 2) return std::string("key wants one or more keys");
        for (std::size_t i = 1; i < words.size(); ++i) {
            std::optional<KeyStroke> key = ReadKey(words[i]);
            if (!key) return "unknown key " + std::string(words[i]);
            out->keys.push_back(*key);
        }
    } else if (word == "TYPE") {
        out->command = Command::Type;
        out->text = Utf8ToCp1252(std::string(rest));
        if (out->text.empty()) return std::string("type wants the text to type");
    } else if (word == "BUTTON") {
        out->command = Command::Button;
        if (words.size() != 2 || !ReadInt(words[1], &out->amount))
            return std::string("button wants a control id");
    } else if (word == "WAIT") {
        out->command = Command::Wait;
        if (words.size() != 2 || !ReadInt(words[1], &out->amount) || out->amount < 0 ||
            out->amount > LongestWait)
            return std::string("wait wants milliseconds, 0 to ") + std::to_string(LongestWait);
    } else if (word == "DUMP") {
        out->command = Command::Dump;
        if (words.size() != 1) return std::string("dump takes nothing more");
    } else if (word == "SCREENSHOT") {
        out->command = Command::Screenshot;
        out->text = Trim(rest);
        if (out->text.empty()) return std::string("screenshot wants a path");
    } else {
        return "unknown command " + std::string(words.front());
    }
    return std::nullopt;
}

bool ScriptReader::ReadPointer(const std::vector<std::string_view>& words, bool withDelta,
                               ScriptLine* out) {
    std::size_t at = 1;
    if (at < words.size() && words[at].starts_with('@')) {
        int control = 0;
        if (!ReadInt(words[at].substr(1), &control)) return false;
        out->control = control;
        ++at;
    }
    const std::size_t wanted = at + (withDelta ? 3 : 2);
    int x = 0, y = 0;
    if (words.size() != wanted || !ReadInt(words[at], &x) || !ReadInt(words[at + 1], &y))
        return false;
    out->point = POINT{x, y};
    return !withDelta || ReadInt(words[at + 2], &out->amount);
}

std::optional<KeyStroke> ScriptReader::ReadKey(std::string_view name) {
    KeyStroke key;
    std::string rest = host::UpperCase(name);
    for (std::size_t plus; (plus = rest.find('+')) != std::string::npos;) {
        const std::string prefix = rest.substr(0, plus);
        if (prefix == "SHIFT")
            key.shift = true;
        else if (prefix == "CTRL")
            key.ctrl = true;
        else if (prefix == "ALT")
            key.alt = true;
        else
            return std::nullopt;
        rest.erase(0, plus + 1);
    }
    const bool letterOrDigit = rest.size() == 1 && ((rest[0] >= 'A' && rest[0] <= 'Z') ||
                                                    (rest[0] >= '0' && rest[0] <= '9'));
    if (letterOrDigit) {
        key.vk = rest[0];
        return key;
    }
    int function = 0;
    if (rest.size() >= 2 && rest[0] == 'F' && rest[1] != '0' &&
        ReadInt(std::string_view(rest).substr(1), &function) && function >= 1 && function <= 12) {
        key.vk = VK_F1 + function - 1;
        return key;
    }
    for (const auto& [keyName, vk] : keyNames) {
        if (rest == keyName) {
            key.vk = vk;
            return key;
        }
    }
    return std::nullopt;
}
