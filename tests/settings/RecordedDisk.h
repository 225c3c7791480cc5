// Plays a record of RecordCalls.cpp back onto a model of a disk, on which only synced changes are safe: a
// file's contents after a sync of the file, a name after a sync of its folder.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace zantroq::test {

struct sCall
{
    char Kind = 0;
    std::int64_t Descriptor = 0, Offset = 0;
    std::string Text;
};

inline std::vector<sCall> ReadRecord(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::vector<sCall> calls;
    for (sCall call; file.get(call.Kind);) {
        std::int64_t numbers[3];
        if (!file.read(reinterpret_cast<char*>(numbers), sizeof numbers))
            break;
        call.Descriptor = numbers[0];
        call.Offset = numbers[1];
        call.Text.resize(static_cast<std::size_t>(numbers[2]));
        if (!file.read(call.Text.data(), numbers[2]))
            break; // the last record is still being written
        calls.push_back(call);
    }
    return calls;
}

// Which of the changes that were not synced a loss of power takes.
enum class PowerLoss
{
    TakesAll,
    TakesSome, // each change by chance
    TakesNone
};

class CRecordedDisk
{
public:
    void Play(const sCall& call)
    {
        switch (call.Kind) {
        case 'c':
            m_now[call.Text] = std::make_shared<sFile>();
            m_opened[call.Descriptor] = call.Text;
            return;
        case 'o': // a process that is not recorded may have created it
            m_now.try_emplace(call.Text, std::make_shared<sFile>());
            m_opened[call.Descriptor] = call.Text;
            return;
        case 'd':
            m_opened[call.Descriptor] = call.Text;
            return;
        case 'm':
            m_now[call.Text] = nullptr;
            return;
        case 'u':
            m_now.erase(call.Text);
            return;
        case 's':
            Sync(m_opened[call.Descriptor]);
            return;
        case 'w':
        case 't':
            if (const auto file = m_now.find(m_opened[call.Descriptor]); file != m_now.end() && file->second)
                file->second->Pending.push_back(call);
        }
    }

    // Writes what remains of `folder` below `target`.
    void LosePower(PowerLoss loss, const std::string& folder, const std::string& target)
    {
        std::filesystem::remove_all(target);
        std::filesystem::create_directories(target);
        for (const auto& [path, file] : NamesAfter(loss)) {
            if (!path.starts_with(folder + "/"))
                continue;
            const std::filesystem::path place = target + path.substr(folder.size());
            if (!std::filesystem::exists(place.parent_path()))
                continue; // the folder's own name is lost
            if (file)
                std::ofstream(place, std::ios::binary) << BytesAfter(loss, *file);
            else
                std::filesystem::create_directories(place);
        }
    }

private:
    struct sFile
    {
        std::string Safe;
        std::vector<sCall> Pending;
    };
    using Names = std::map<std::string, std::shared_ptr<sFile>>; // null: a folder

    static void Change(std::string& bytes, const sCall& call)
    {
        const auto offset = static_cast<std::size_t>(call.Offset);
        if (call.Kind == 't') {
            bytes.resize(offset);
            return;
        }
        if (bytes.size() < offset + call.Text.size())
            bytes.resize(offset + call.Text.size());
        bytes.replace(offset, call.Text.size(), call.Text);
    }

    bool IsTaken(PowerLoss loss)
    {
        return loss == PowerLoss::TakesAll || (loss == PowerLoss::TakesSome && m_chance() % 2 == 0);
    }

    std::string BytesAfter(PowerLoss loss, const sFile& file)
    {
        std::string bytes = file.Safe;
        for (const sCall& call : file.Pending)
            if (!IsTaken(loss))
                Change(bytes, call);
        return bytes;
    }

    Names NamesAfter(PowerLoss loss)
    {
        Names names = m_safe;
        for (const auto& [path, file] : m_now)
            if (!names.contains(path) || names[path] != file)
                if (!IsTaken(loss))
                    names[path] = file;
        for (const auto& [path, file] : m_safe)
            if (!m_now.contains(path) && !IsTaken(loss))
                names.erase(path);
        return names;
    }

    void Sync(const std::string& path)
    {
        if (const auto file = m_now.find(path); file != m_now.end() && file->second) {
            for (const sCall& call : file->second->Pending)
                Change(file->second->Safe, call);
            file->second->Pending.clear();
            return;
        }
        const auto isIn = [&](const auto& entry) {
            return std::filesystem::path(entry.first).parent_path() == std::filesystem::path(path);
        };
        std::erase_if(m_safe, isIn);
        for (const auto& entry : m_now)
            if (isIn(entry))
                m_safe.insert(entry);
    }

    Names m_now, m_safe;
    std::map<std::int64_t, std::string> m_opened;
    std::mt19937 m_chance{1};
};

} // namespace zantroq::test
