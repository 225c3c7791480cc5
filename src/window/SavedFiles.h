// The kinds of files that a window can be saved to, by the ending of their names. Pure functions, any thread.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace zantroq {

enum class SavedFileKind
{
    Png,
    Svg,
    Pdf,
    State, // the window's state, as JSON
    Values // the displayed values, as CSV
};

struct sSavedFileRow
{
    SavedFileKind Kind;
    std::string_view Ending; // without the dot
    const char* Description; // shown in file dialogs
};

inline constexpr std::array<sSavedFileRow, 5> SavedFiles{
    {{SavedFileKind::Png, "png", "Picture"},
     {SavedFileKind::Svg, "svg", "Vector picture"},
     {SavedFileKind::Pdf, "pdf", "PDF"},
     {SavedFileKind::State, "json", "State of the chart"},
     {SavedFileKind::Values, "csv", "Shown values"}}};

// The kinds that a replay script's snapshot can have: all except the values.
inline constexpr std::span<const sSavedFileRow> SnapshotFiles = std::span(SavedFiles).first(4);

// The kind of a file by the ending of its name, in lower case and without the dot; empty for other endings.
std::optional<SavedFileKind> SavedFileKindOf(std::string_view ending);

// A list for messages, such as ".png, .svg or .pdf".
std::string EndingList(std::span<const sSavedFileRow> files);

} // namespace zantroq
