// Writing and reading the lines of a recording.
#include "platform/display/InputRecord.h"
#include "platform/window/Messages.h"

#include <array>
#include <charconv>
#include <utility>

namespace splitframe {

namespace {

using Kind = InputEvent::Kind;

constexpr std::array<std::pair<Kind, std::string_view>, 13> KINDS = {{{Kind::MouseMove, "move"},
                                                                      {Kind::ButtonDown, "down"},
                                                                      {Kind::ButtonUp, "up"},
                                                                      {Kind::Wheel, "wheel"},
                                                                      {Kind::KeyDown, "key"},
                                                                      {Kind::KeyUp, "keyup"},
                                                                      {Kind::Text, "text"},
                                                                      {Kind::Activate, "activate"},
                                                                      {Kind::Deactivate, "deactivate"},
                                                                      {Kind::Close, "close"},
                                                                      {Kind::Minimize, "minimize"},
                                                                      {Kind::Restore, "restore"},
                                                                      {Kind::Resize, "resize"}}};

constexpr std::array<std::pair<UINT, std::string_view>, 3> BUTTONS = {
    {{VK_LBUTTON, "left"}, {VK_RBUTTON, "right"}, {VK_MBUTTON, "middle"}}};

template <class Table, class Value> std::string_view NameIn(const Table& table, const Value& value)
{
    for (const auto& [each, name] : table) {
        if (each == value)
            return name;
    }
    return {};
}

// Reads a line from its start; what does not fit is remembered, and all later reading does nothing.
class LineReader
{
public:
    explicit LineReader(std::string_view line) : m_rest(line) {}

    bool IsDone() const { return m_bGood && m_rest.empty(); }
    void Skip(char ch)
    {
        m_bGood = m_bGood && !m_rest.empty() && m_rest.front() == ch;
        m_rest.remove_prefix(m_bGood ? 1 : 0);
    }
    template <class Number> Number TakeNumber()
    {
        Number n{};
        const char* pEnd = m_rest.data() + m_rest.size();
        const auto [pStop, error] = std::from_chars(m_rest.data(), pEnd, n);
        m_bGood = m_bGood && error == std::errc();
        if (m_bGood)
            m_rest.remove_prefix(static_cast<std::size_t>(pStop - m_rest.data()));
        return n;
    }
    template <class Table> auto TakeName(const Table& table)
    {
        const std::string_view word = m_rest.substr(0, m_rest.find(' '));
        for (const auto& [value, name] : table) {
            if (name == word) {
                m_rest.remove_prefix(word.size());
                return value;
            }
        }
        m_bGood = false;
        return table.front().first;
    }
    POINT TakePair(char chBetween)
    {
        const LONG x = TakeNumber<LONG>();
        Skip(chBetween);
        return {x, TakeNumber<LONG>()};
    }
    bool TakeIf(std::string_view text)
    {
        const bool bHere = m_bGood && m_rest == text;
        m_rest.remove_prefix(bHere ? text.size() : 0);
        return bHere;
    }
    std::string_view TakeRest() { return std::exchange(m_rest, {}); }

private:
    std::string_view m_rest;
    bool m_bGood = true;
};

std::string PointText(const POINT& pt)
{
    return ' ' + std::to_string(pt.x) + ',' + std::to_string(pt.y);
}

std::string ValuesOf(const InputEvent& event)
{
    switch (event.kind) {
    case Kind::MouseMove:
        return PointText(event.pt);
    case Kind::ButtonDown:
    case Kind::ButtonUp:
        return PointText(event.pt) + ' ' + std::string(NameIn(BUTTONS, event.nButton));
    case Kind::Wheel:
        return PointText(event.pt) + ' ' + std::to_string(event.nDelta);
    case Kind::KeyDown:
    case Kind::KeyUp:
        return ' ' + std::to_string(event.nKey) + (event.bRepeat ? " repeat" : "");
    case Kind::Text:
        return ' ' + event.strText.ToUtf8();
    case Kind::Resize:
        return ' ' + std::to_string(event.size.cx) + 'x' + std::to_string(event.size.cy);
    default:
        return {};
    }
}

void ReadValues(LineReader& reader, InputEvent& event)
{
    switch (event.kind) {
    case Kind::MouseMove:
    case Kind::ButtonDown:
    case Kind::ButtonUp:
    case Kind::Wheel:
        reader.Skip(' ');
        event.pt = reader.TakePair(',');
        if (event.kind == Kind::MouseMove)
            return;
        reader.Skip(' ');
        if (event.kind == Kind::Wheel)
            event.nDelta = reader.TakeNumber<int>();
        else
            event.nButton = reader.TakeName(BUTTONS);
        return;
    case Kind::KeyDown:
    case Kind::KeyUp:
        reader.Skip(' ');
        event.nKey = reader.TakeNumber<UINT>();
        event.bRepeat = reader.TakeIf(" repeat");
        return;
    case Kind::Text:
        reader.Skip(' ');
        event.strText = CString::FromUtf8(reader.TakeRest());
        return;
    case Kind::Resize: {
        reader.Skip(' ');
        const POINT size = reader.TakePair('x');
        event.size = {size.x, size.y};
        return;
    }
    default:
        return;
    }
}

} // namespace

std::string InputAsText(const TimedInput& input)
{
    const std::string_view name = NameIn(KINDS, input.event.kind);
    if (name.empty())
        return {};
    return std::to_string(input.nTime) + ' ' + std::string(name) + ValuesOf(input.event);
}

std::optional<TimedInput> ReadInput(std::string_view line)
{
    LineReader reader(line);
    TimedInput input;
    input.nTime = reader.TakeNumber<ULONGLONG>();
    reader.Skip(' ');
    input.event.kind = reader.TakeName(KINDS);
    ReadValues(reader, input.event);
    return reader.IsDone() ? std::optional(std::move(input)) : std::nullopt;
}

void InputRecorder::Note(const InputEvent& event, ULONGLONG nNow)
{
    const std::string line = InputAsText({nNow - m_nStart, event});
    if (!line.empty())
        m_file << line << std::endl;
}

} // namespace splitframe
