#include "scene/PaneVectors.h"

#include "scene/HoleValue.h"
#include "scene/PaneTextCheck.h"

#include <fast_float/fast_float.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

namespace zantroq {

namespace {

constexpr std::ptrdiff_t LongestNumber = 32; // characters

char* Put(char* at, std::string_view text)
{
    return std::copy(text.begin(), text.end(), at);
}

// Writes at most LongestNumber characters and returns the end.
char* PutNumber(char* at, double value)
{
    if (value == HoleValue)
        return Put(at, "null");
    if (!std::isfinite(value))
        return Put(at, std::isnan(value) ? "\"nan\"" : value > 0 ? "\"inf\"" : "\"-inf\"");
    constexpr double longestPlain = 1e15; // whole numbers from here on are written with an exponent
    if (value > -longestPlain && value < longestPlain &&
        value == static_cast<double>(static_cast<std::int64_t>(value)) &&
        !(value == 0 && std::signbit(value)))
        return Put(std::to_chars(at, at + LongestNumber, static_cast<std::int64_t>(value)).ptr, ".0");
    return nlohmann::detail::to_chars(at, at + LongestNumber, value);
}

// Walks the text of a pane file down to its series and extracts their lists. Checks only what it walks over;
// everything but the extracted numbers goes to the JSON parser, which checks it.
class CListTaker
{
public:
    CListTaker(std::string_view text, std::vector<CPaneVectors::sSeries> (&groups)[2])
        : m_at(text.data()), m_end(m_at + text.size()), m_copied(m_at), m_groups(groups)
    {
    }

    bool Walk()
    {
        bool seen = false;
        return Members([&](std::string_view name) {
            if (name != "groups")
                return SkipValue(1);
            return !std::exchange(seen, true) &&
                   Items([&](std::size_t number) { return number < 2 ? Group(number) : SkipValue(2); });
        });
    }

    std::string Rest()
    {
        m_rest.append(m_copied, m_end);
        return std::move(m_rest);
    }

private:
    bool Group(std::size_t number)
    {
        bool seen = false;
        return Members([&](std::string_view name) {
            if (name != "series")
                return SkipValue(3);
            return !std::exchange(seen, true) && Items([&](std::size_t series) {
                m_groups[number].emplace_back();
                return Series(m_groups[number], series);
            });
        });
    }

    bool Series(std::vector<CPaneVectors::sSeries>& all, std::size_t number)
    {
        bool seenX = false, seenY = false;
        return Members([&](std::string_view name) {
            if (name != "x" && name != "y")
                return SkipValue(5);
            if (std::exchange(name == "x" ? seenX : seenY, true))
                return false;
            const char* const begin = m_at;
            if (name == "x" && number > 0 && !m_firstX.empty() &&
                std::string_view(m_at, static_cast<std::size_t>(m_end - m_at)).starts_with(m_firstX)) {
                all[number].XOfFirst = true;
                m_at += m_firstX.size();
                Cut(begin);
                return true;
            }
            std::optional<std::vector<double>>& list = name == "x" ? all[number].X : all[number].Y;
            list = Numbers();
            if (!list) {
                m_at = begin;
                return SkipValue(5);
            }
            if (name == "x" && number == 0)
                m_firstX = {begin, static_cast<std::size_t>(m_at - begin)};
            Cut(begin);
            return true;
        });
    }

    // Replaces the list from `begin` to the current position by an empty one.
    void Cut(const char* begin)
    {
        m_rest.append(m_copied, begin);
        m_rest += "[]";
        m_copied = m_at;
    }

    bool Take(char sign)
    {
        SkipBlanks();
        if (m_at == m_end || *m_at != sign)
            return false;
        ++m_at;
        return true;
    }

    void SkipBlanks()
    {
        while (m_at != m_end && (*m_at == ' ' || *m_at == '\n' || *m_at == '\r' || *m_at == '\t'))
            ++m_at;
    }

    // Calls `member` for the name of each member of an object. A name with an escape could be any name, so it
    // fails.
    template<class F> bool Members(F member)
    {
        if (!Take('{'))
            return false;
        if (Take('}'))
            return true;
        do {
            SkipBlanks();
            const char* const begin = m_at;
            if (!SkipString())
                return false;
            const std::string_view name(begin + 1, static_cast<std::size_t>(m_at - begin - 2));
            if (name.find('\\') != name.npos || !Take(':'))
                return false;
            SkipBlanks();
            if (!member(name))
                return false;
        } while (Take(','));
        return Take('}');
    }

    template<class F> bool Items(F item)
    {
        if (!Take('['))
            return false;
        m_firstX = {};
        if (Take(']'))
            return true;
        std::size_t number = 0;
        do {
            SkipBlanks();
            if (!item(number++))
                return false;
        } while (Take(','));
        return Take(']');
    }

    bool SkipString()
    {
        if (m_at == m_end || *m_at != '"')
            return false;
        for (++m_at; m_at != m_end; ++m_at) {
            if (*m_at == '"') {
                ++m_at;
                return true;
            }
            if (*m_at == '\\' && ++m_at == m_end)
                return false;
        }
        return false;
    }

    bool SkipValue(int depth)
    {
        if (depth > DeepestPaneValue)
            RefuseDeepValue();
        SkipBlanks();
        if (m_at == m_end)
            return false;
        if (*m_at == '"')
            return SkipString();
        if (*m_at == '{' || *m_at == '[') {
            const char last = *m_at == '{' ? '}' : ']';
            ++m_at;
            if (Take(last))
                return true;
            do {
                if (!SkipValue(depth + 1))
                    return false;
                if (Take(':') && !SkipValue(depth + 1))
                    return false;
            } while (Take(','));
            return Take(last);
        }
        const char* const begin = m_at;
        while (m_at != m_end && *m_at != ',' && *m_at != ']' && *m_at != '}' && *m_at != ':' &&
               *m_at != ' ' && *m_at != '\n' && *m_at != '\r' && *m_at != '\t' && *m_at != '"' &&
               *m_at != '[' && *m_at != '{')
            ++m_at;
        return m_at != begin;
    }

    std::optional<std::vector<double>> Numbers()
    {
        std::vector<double> numbers;
        if (!Take('['))
            return std::nullopt;
        if (Take(']'))
            return numbers;
        numbers.reserve(m_usual);
        do {
            double number = 0;
            SkipBlanks();
            if (!Number(number))
                return std::nullopt;
            numbers.push_back(number);
        } while (Take(','));
        if (!Take(']'))
            return std::nullopt;
        m_usual = numbers.size();
        return numbers;
    }

    bool Word(std::string_view word)
    {
        if (!std::string_view(m_at, static_cast<std::size_t>(m_end - m_at)).starts_with(word))
            return false;
        m_at += word.size();
        return true;
    }

    bool Digits()
    {
        const char* const begin = m_at;
        while (m_at != m_end && *m_at >= '0' && *m_at <= '9')
            ++m_at;
        return m_at != begin;
    }

    // A number in JSON's grammar, which is stricter than fast_float's.
    bool Number(double& number)
    {
        const char* const begin = m_at;
        if (Word("null")) {
            number = HoleValue;
            return true;
        }
        if (m_at != m_end && *m_at == '"') {
            constexpr double infinity = std::numeric_limits<double>::infinity();
            number = Word("\"nan\"")    ? std::numeric_limits<double>::quiet_NaN()
                     : Word("\"inf\"")  ? infinity
                     : Word("\"-inf\"") ? -infinity
                                        : 0.0;
            return m_at != begin;
        }
        const bool minus = Word("-");
        const char* const first = m_at;
        if (!Digits() || (*first == '0' && m_at - first > 1))
            return false;
        bool whole = true;
        if (Word(".")) {
            whole = false;
            if (!Digits())
                return false;
        }
        if (m_at != m_end && (*m_at == 'e' || *m_at == 'E')) {
            whole = false;
            ++m_at;
            if (m_at != m_end && (*m_at == '+' || *m_at == '-'))
                ++m_at;
            if (!Digits())
                return false;
        }
        const auto read = fast_float::from_chars(begin, m_at, number);
        if (read.ec != std::errc() || read.ptr != m_at || std::isinf(number))
            return false;
        if (whole && minus && number == 0)
            number = 0; // JSON has no negative whole zero
        return true;
    }

    const char* m_at;
    const char* m_end;
    const char* m_copied; // everything before it is in m_rest
    std::string m_rest;
    std::size_t m_usual = 0;   // numbers in the list before
    std::string_view m_firstX; // of the group that is read
    std::vector<CPaneVectors::sSeries> (&m_groups)[2];
};

} // namespace

void AppendNumbers(std::string& text, std::span<const double> values)
{
    std::array<char, 8192> piece;
    char* at = Put(piece.data(), "[");
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (piece.data() + piece.size() - at < LongestNumber + 2) {
            text.append(piece.data(), at);
            at = piece.data();
        }
        if (i > 0)
            *at++ = ',';
        at = PutNumber(at, values[i]);
    }
    text.append(piece.data(), Put(at, "]"));
}

std::optional<std::string> CPaneVectors::TakeFrom(std::string_view text)
{
    CListTaker taker(text, m_groups);
    if (taker.Walk())
        return taker.Rest();
    for (std::vector<sSeries>& group : m_groups)
        group.clear();
    return std::nullopt;
}

const CPaneVectors::sSeries* CPaneVectors::Find(std::size_t group, std::size_t series) const
{
    return group < 2 && series < m_groups[group].size() ? &m_groups[group][series] : nullptr;
}

} // namespace zantroq
