// A file of its own in a folder for short-lived files, gone with the object. Any thread.
#pragma once

#include <string>

namespace zantroq {

// The system's folder for temporary files; the current folder where there is none.
std::string TemporaryFolder();

class CTemporaryFile
{
public:
    // Makes an empty file that only this user can read, its name the prefix and six characters of chance.
    explicit CTemporaryFile(const std::string& prefix, const std::string& folder = TemporaryFolder());
    ~CTemporaryFile() { Remove(); }
    CTemporaryFile(const CTemporaryFile&) = delete;
    CTemporaryFile& operator=(const CTemporaryFile&) = delete;

    const std::string& Path() const { return m_path; } // empty where no file could be made, or after Remove
    void Remove();

private:
    std::string m_path;
};

} // namespace zantroq
