// A temporary file that is deleted with its object. Any thread.
#pragma once

#include <string>

namespace zantroq {

// The system's folder for temporary files, or the current folder if there is none.
std::string TemporaryFolder();

class CTemporaryFile
{
public:
    // Creates an empty file that only this user can read. Its name is the prefix and six random characters.
    explicit CTemporaryFile(const std::string& prefix, const std::string& folder = TemporaryFolder());
    ~CTemporaryFile() { Remove(); }
    CTemporaryFile(const CTemporaryFile&) = delete;
    CTemporaryFile& operator=(const CTemporaryFile&) = delete;

    const std::string& Path() const
    {
        return m_path;
    } // empty if the file could not be created, or after Remove
    void Remove();

private:
    std::string m_path;
};

} // namespace zantroq
