// A field of a pane file: a JSON value that knows its place in the file, for messages. Lives for one reading;
// any thread.
#pragma once

#include "platform/Color.h"

#include <nlohmann/json_fwd.hpp>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace zantroq {

// Every getter throws std::runtime_error, with one sentence that names the field, if the value is not of the
// requested kind.
class CPaneField
{
public:
    // `value` outlives the field; `path` is its place, as in "pane.groups[0].type".
    CPaneField(const nlohmann::json& value, std::string path) : m_value(value), m_path(std::move(path)) {}

    [[noreturn]] static void Fail(const std::string& path, const std::string& what);

    CPaneField At(const char* name) const;
    bool Has(const char* name) const;
    CPaneField At(std::size_t index) const; // REQUIRES: below Size()
    std::size_t Size() const;               // of a list
    void NeedSize(std::size_t size) const { NeedSize(Size(), size); }
    void NeedSize(std::size_t has,
                  std::size_t size) const; // for a list whose entries were taken out beforehand
    bool IsNull() const;
    bool Bool() const;
    std::string Text() const;
    int Int(std::int64_t low = std::numeric_limits<int>::min(),
            std::int64_t high = std::numeric_limits<int>::max()) const
    {
        return static_cast<int>(Integer(low, high));
    }
    ColorValue Color() const
    {
        return static_cast<ColorValue>(Integer(0, std::numeric_limits<ColorValue>::max()));
    }
    // Null is the hole value; "nan", "inf" and "-inf" are numbers too.
    double Number() const;
    std::vector<double> Numbers() const;
    const nlohmann::json& Value() const { return m_value; }

private:
    const nlohmann::json& Object() const;
    std::int64_t Integer(std::int64_t low, std::int64_t high) const;

    const nlohmann::json& m_value;
    std::string m_path;
};

} // namespace zantroq
