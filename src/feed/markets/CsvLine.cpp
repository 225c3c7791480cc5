#include "feed/markets/CsvLine.h"

namespace zantroq::feed {

bool TakeLine(std::string_view& text, std::string_view& line)
{
    if (text.empty())
        return false;
    const std::size_t end = text.find_first_of("\r\n");
    line = text.substr(0, end);
    if (end == std::string_view::npos) {
        text = {};
        return true;
    }
    const bool pair = text[end] == '\r' && end + 1 < text.size() && text[end + 1] == '\n';
    text.remove_prefix(end + (pair ? 2 : 1));
    return true;
}

std::string_view TrimBlanks(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

void SplitCsvLine(std::string_view line, std::vector<std::string_view>& fields)
{
    fields.clear();
    for (;;) {
        std::size_t from = 0;
        const std::size_t start = line.find_first_not_of(" \t");
        bool quoted = false;
        if (start != std::string_view::npos && line[start] == '"') {
            const std::size_t close = line.find('"', start + 1);
            if (close != std::string_view::npos) {
                fields.push_back(line.substr(start + 1, close - start - 1));
                from = close + 1;
                quoted = true;
            }
        }
        const std::size_t comma = line.find(',', from);
        if (!quoted)
            fields.push_back(TrimBlanks(line.substr(0, comma)));
        if (comma == std::string_view::npos)
            return;
        line.remove_prefix(comma + 1);
    }
}

void SplitAtCommas(std::string_view line, std::vector<std::string_view>& fields)
{
    fields.clear();
    for (std::size_t comma = line.find(','); comma != std::string_view::npos; comma = line.find(',')) {
        fields.push_back(line.substr(0, comma));
        line.remove_prefix(comma + 1);
    }
    fields.push_back(line);
}

std::string UpperCase(std::string_view text)
{
    std::string upper(text);
    for (char& c : upper)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    return upper;
}

std::string ShownText(std::string_view text)
{
    constexpr std::size_t longest = 40;
    std::string shown;
    for (const char c : text.substr(0, longest))
        shown += c >= ' ' && c <= '~' ? c : '?';
    return text.size() > longest ? shown + "..." : shown;
}

} // namespace zantroq::feed
