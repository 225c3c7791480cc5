// The long lists of a pane file, which are the x and y values of its series. As a tree of JSON values they
// take most of the time of saving and loading, so they are written straight into the text and taken out of
// it before the rest is parsed. The text is the same either way. Any thread.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zantroq {

// Appends the values as a JSON list: null for the hole value, "nan", "inf" and "-inf" for what is not finite,
// else the same digits as the JSON library writes.
void AppendNumbers(std::string& text, std::span<const double> values);

class CPaneVectors
{
public:
    struct sSeries
    {
        // Nothing where the list was left in the text: it was missing, or not plain enough to be read here.
        std::optional<std::vector<double>> X, Y;
        bool XOfFirst = false; // X is that of the group's first series, word for word
    };

    // Takes the lists "x" and "y" of the series of both groups out of the text of a pane file and gives the
    // text with empty lists in their places. Nothing where the text is unusual enough to be left to the JSON
    // parser as it is; nothing is taken then. Whatever is wrong in a text, but in a list that was taken, is
    // still wrong in what is returned. Throws std::runtime_error where values lie deeper in one another than
    // in any pane file.
    std::optional<std::string> TakeFrom(std::string_view text);

    // Null for a series of which nothing was taken. Both count from 0.
    const sSeries* Find(std::size_t group, std::size_t series) const;

private:
    std::vector<sSeries> m_groups[2];
};

} // namespace zantroq
