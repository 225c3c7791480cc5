#include "window/SettingsWriter.h"

#include <charconv>

namespace zantroq {

void CSettingsWriter::WriteDouble(const std::string& name, double value)
{
    char text[400];
    const auto [end, error] = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, 6);
    if (error == std::errc())
        m_key.Write(name, std::string(text, end));
}

} // namespace zantroq
