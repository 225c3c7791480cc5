// The conditions array of a series. Feed lines carry no conditions, so only texts that are not empty take
// memory; the count is kept separately. Not thread-safe: the owner locks. An index out of range throws
// std::invalid_argument.
#pragma once

#include <map>
#include <stdexcept>
#include <string>

namespace zantroq {

class CConditionArray
{
public:
    int Count() const { return m_count; }

    void Clear()
    {
        m_texts.clear();
        m_count = 0;
    }

    void Add(const std::string& text)
    {
        if (!text.empty())
            m_texts[m_count] = text;
        ++m_count;
    }

    // Adds `count` empty texts.
    void AddEmpty(int count) { m_count += count; }

    std::string Get(int index) const
    {
        Check(index);
        const auto found = m_texts.find(index);
        return found == m_texts.end() ? std::string() : found->second;
    }

    void SetAt(int index, const std::string& text)
    {
        Check(index);
        if (text.empty())
            m_texts.erase(index);
        else
            m_texts[index] = text;
    }

    void RemoveAt(int index)
    {
        Check(index);
        std::map<int, std::string> kept;
        for (auto& [at, text] : m_texts)
            if (at != index)
                kept.emplace(at < index ? at : at - 1, std::move(text));
        m_texts = std::move(kept);
        --m_count;
    }

    void Check(int index) const
    {
        if (index < 0 || index >= m_count)
            throw std::invalid_argument("array index outside the array");
    }

private:
    std::map<int, std::string> m_texts; // texts that are not empty, by index
    int m_count = 0;
};

} // namespace zantroq
