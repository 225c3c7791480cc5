#include "scene/PaneField.h"

#include "scene/HoleValue.h"

#include <nlohmann/json.hpp>

#include <stdexcept>

namespace zantroq {

using nlohmann::json;

void CPaneField::Fail(const std::string& path, const std::string& what)
{
    throw std::runtime_error("pane file: " + path + ": " + what);
}

CPaneField CPaneField::At(const char* name) const
{
    const auto found = Object().find(name);
    if (found == m_value.end())
        Fail(m_path, std::string("\"") + name + "\" is missing");
    return {*found, m_path + "." + name};
}

bool CPaneField::Has(const char* name) const
{
    return Object().contains(name);
}

CPaneField CPaneField::At(std::size_t index) const
{
    return {m_value.at(index), m_path + "[" + std::to_string(index) + "]"};
}

std::size_t CPaneField::Size() const
{
    if (!m_value.is_array())
        Fail(m_path, "not a list");
    return m_value.size();
}

void CPaneField::NeedSize(std::size_t has, std::size_t size) const
{
    if (has != size)
        Fail(m_path, std::to_string(has) + " entries where there are to be " + std::to_string(size));
}

bool CPaneField::IsNull() const
{
    return m_value.is_null();
}

bool CPaneField::Bool() const
{
    if (!m_value.is_boolean())
        Fail(m_path, "neither true nor false");
    return m_value.get<bool>();
}

std::string CPaneField::Text() const
{
    if (!m_value.is_string())
        Fail(m_path, "not a text");
    return m_value.get<std::string>();
}

double CPaneField::Number() const
{
    if (m_value.is_number())
        return m_value.get<double>();
    if (m_value.is_null())
        return HoleValue;
    if (m_value.is_string()) {
        const std::string& text = m_value.get_ref<const std::string&>();
        if (text == "nan")
            return std::numeric_limits<double>::quiet_NaN();
        if (text == "inf" || text == "-inf")
            return text == "inf" ? std::numeric_limits<double>::infinity()
                                 : -std::numeric_limits<double>::infinity();
    }
    Fail(m_path, "not a number");
}

std::vector<double> CPaneField::Numbers() const
{
    std::vector<double> numbers(Size());
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const json& value = m_value[i];
        numbers[i] = value.is_number_float() ? *value.get_ptr<const double*>() : At(i).Number();
    }
    return numbers;
}

const json& CPaneField::Object() const
{
    if (!m_value.is_object())
        Fail(m_path, "not an object");
    return m_value;
}

std::int64_t CPaneField::Integer(std::int64_t low, std::int64_t high) const
{
    if (!m_value.is_number_integer())
        Fail(m_path, "not a whole number");
    // The unsigned form holds numbers that the signed one cannot.
    const bool huge =
        m_value.is_number_unsigned() &&
        m_value.get<std::uint64_t>() > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    const std::int64_t number = huge ? std::numeric_limits<std::int64_t>::max() : m_value.get<std::int64_t>();
    if (huge || number < low || number > high)
        Fail(m_path,
             m_value.dump() + " is not between " + std::to_string(low) + " and " + std::to_string(high));
    return number;
}

} // namespace zantroq
