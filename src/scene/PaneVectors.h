// The long lists of a pane file: the x and y values of its series. As a tree of JSON values they take most of
// the time of saving and loading, so they are written directly into the text, and extracted from it before
// the rest is parsed. The text is the same either way. Any thread.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zantroq {

// Appends the values as a JSON list: null for the hole value, "nan", "inf" and "-inf" for values that are not
// finite, else the same digits as the JSON library writes.
void AppendNumbers(std::string& text, std::span<const double> values);

class CPaneVectors
{
public:
    struct sSeries
    {
        // Empty if the list was left in the text: it was missing, or needs the JSON parser.
        std::optional<std::vector<double>> X, Y;
        bool XOfFirst = false; // X has the same text as in the group's first series
    };

    // Extracts the lists "x" and "y" of the series of both groups from the text of a pane file and returns
    // the text with empty lists in their places. Empty, with nothing extracted, if the text needs the JSON
    // parser as a whole. Errors outside the extracted lists remain in the returned text, so the JSON parser
    // still reports them. Throws std::runtime_error if values are nested deeper than in any pane file.
    std::optional<std::string> TakeFrom(std::string_view text);

    // Null for a series of which nothing was extracted. Both numbers count from 0.
    const sSeries* Find(std::size_t group, std::size_t series) const;

private:
    std::vector<sSeries> m_groups[2];
};

} // namespace zantroq
