#include "platform/TemporaryFile.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace zantroq {

std::string TemporaryFolder()
{
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::temp_directory_path(error);
    return error ? "." : folder.string();
}

CTemporaryFile::CTemporaryFile(const std::string& prefix, const std::string& folder)
    : m_path((std::filesystem::path(folder) / (prefix + "XXXXXX")).string())
{
    const int file = ::mkstemp(m_path.data());
    if (file < 0)
        m_path.clear();
    else
        ::close(file);
}

void CTemporaryFile::Remove()
{
    if (m_path.empty())
        return;
    ::unlink(m_path.c_str());
    m_path.clear();
}

} // namespace zantroq
