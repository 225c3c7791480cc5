// A folder for one test, deleted with this object.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <unistd.h>

namespace zantroq::feed {

class CTemporaryFolder
{
public:
    CTemporaryFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "zantroq-feed-XXXXXX").string();
        m_path = mkdtemp(name.data());
    }
    ~CTemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    CTemporaryFolder(const CTemporaryFolder&) = delete;
    CTemporaryFolder& operator=(const CTemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return m_path; }
    void Write(const std::string& name, std::string_view text) const
    {
        std::ofstream(m_path / name, std::ios::binary) << text;
    }

private:
    std::filesystem::path m_path;
};

} // namespace zantroq::feed
