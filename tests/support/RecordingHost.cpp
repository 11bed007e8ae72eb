#include "support/RecordingHost.h"

#include <algorithm>

namespace vantrix::test {

RecordingHost& RecordingHost::instance()
{
    static RecordingHost host;
    return host;
}

void RecordingHost::reset()
{
    std::vector<Listener> kept;
    kept.swap(listeners);
    unsigned long const lastStamp = m_lastStamp;
    *this = RecordingHost();
    listeners.swap(kept);
    m_lastStamp = lastStamp;
}

long RecordingHost::nameNumber(char const* name)
{
    auto const found = std::find(m_names.begin(), m_names.end(), name);
    return found == m_names.end() ? -1 : found - m_names.begin();
}

long RecordingHost::entryNumber(std::vector<long> const& path) const
{
    auto const found =
        std::find_if(m_entries.begin(), m_entries.end(), [&path](Entry const& entry) { return entry.path == path; });
    return found == m_entries.end() ? -1 : found - m_entries.begin();
}

long RecordingHost::entryOf(Path path)
{
    std::vector<long> numbers;
    for (char const* const name : path) {
        numbers.push_back(nameNumber(name));
    }
    return entryNumber(numbers);
}

void RecordingHost::define(Path path, Value const& byDefault)
{
    std::vector<long> numbers;
    for (char const* const name : path) {
        if (nameNumber(name) < 0) {
            m_names.emplace_back(name);
        }
        numbers.push_back(nameNumber(name));
    }
    m_entries.push_back({numbers, byDefault, ++m_lastStamp});
}

char const* RecordingHost::pathName(long entry, int index) const
{
    if (entry < 0) {
        return nullptr;
    }
    std::vector<long> const& path = m_entries[static_cast<std::size_t>(entry)].path;
    bool const known = index >= 1 && index <= static_cast<int>(path.size());
    return known ? m_names[static_cast<std::size_t>(path[static_cast<std::size_t>(index - 1)])].c_str() : nullptr;
}

unsigned long RecordingHost::stamp(long entry) const
{
    return entry < 0 ? 0 : m_entries[static_cast<std::size_t>(entry)].stamp;
}

RecordingHost::Value const* RecordingHost::find(long entry, long first, long second) const
{
    auto const found = m_values.find({entry, first, second});
    return found != m_values.end() ? &found->second : &m_entries[static_cast<std::size_t>(entry)].byDefault;
}

void RecordingHost::write(long entry, long first, long second, Value const& value)
{
    m_values[{entry, first, second}] = value;
    m_entries[static_cast<std::size_t>(entry)].stamp = ++m_lastStamp;
}

void RecordingHost::put(Path path, Value const& value, long first, long second)
{
    write(entryOf(path), first, second, value);
}

void RecordingHost::change(Path path, Value const& value, long first, long second)
{
    put(path, value, first, second);
    send({StateChange_Style, entryOf(path), 0});
}

RecordingHost::Value RecordingHost::get(Path path, long first, long second)
{
    return *find(entryOf(path), first, second);
}

void RecordingHost::notify(int kind, long object)
{
    send({kind, -1, object});
}

void RecordingHost::send(Change const& change)
{
    m_waiting.push_back(change);
    if (m_sending) {
        return;
    }
    m_sending = true;
    while (!m_waiting.empty()) {
        Change const next = m_waiting.front();
        m_waiting.erase(m_waiting.begin());
        for (Listener const& listener : std::vector<Listener>(listeners)) {
            listener.first(reinterpret_cast<VtxStateChangeHandle>(&next), listener.second);
        }
    }
    m_sending = false;
}

} // namespace vantrix::test
