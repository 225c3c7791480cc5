#include "EmbeddedFeed.h"

#include "CommandLine.h"
#include "market/ZantroPorts.h"

namespace zantroq {
namespace {

// Market seconds a second: so slow that no simulated trade ever happens.
constexpr double Standstill = 1e-9;

} // namespace

CEmbeddedFeed::CEmbeddedFeed(const sCommandLine& line)
{
    feed::sFEED_OPTIONS options;
    if (!line.FeedFolder.empty())
        options.Folders.emplace_back(line.FeedFolder);
    // A window is there to be watched, and a settling picture asks for trades. Any other picture shows the
    // recording alone, so that the same call draws the same picture.
    const bool live = line.Snapshots.empty() ? line.Replay.empty() || line.Show : line.SettleMs > 0;
    options.SimulateAll = live;
    if (!line.Snapshots.empty() && !live)
        options.Speed = Standstill;
    options.OnNotice = [this](const std::string& sentence) { emit Notice(QString::fromStdString(sentence)); };
    m_server = std::make_unique<feed::CFeedServer>(options);
}

CEmbeddedFeed::~CEmbeddedFeed()
{
    m_server->Stop();
}

bool CEmbeddedFeed::Start(std::string& error)
{
    return m_server->Start(error);
}

std::shared_ptr<ISettingsKey> CEmbeddedFeed::PortKey() const
{
    return MakePortKey(m_server->LookupPort(), m_server->Level1Port());
}

} // namespace zantroq
