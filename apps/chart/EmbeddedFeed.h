// A feed inside this process on two free ports, and its messages to the user. Window's thread.
#pragma once

#include "feed/markets/MarketCatalog.h"
#include "feed/server/FeedServer.h"
#include "platform/settings/SettingsKey.h"

#include <QObject>

#include <memory>
#include <optional>
#include <string>

namespace zantroq {

struct sCommandLine;

class CEmbeddedFeed : public QObject
{
    Q_OBJECT

public:
    explicit CEmbeddedFeed(const sCommandLine& line);
    ~CEmbeddedFeed() override;

    // Returns false and sets `error` to a sentence if no port is available.
    bool Start(std::string& error);
    std::shared_ptr<ISettingsKey> PortKey() const; // once started

    // The finest data type that the feed has of the symbol, 0 to 4; nothing for a symbol that it does not
    // know. `preferred` where the feed has that. Reads the recordings again.
    std::optional<int> TypeFor(const std::string& symbol, int preferred) const;

    // A clause that says what to do if no complete reply came for a symbol: what data the feed has for it and
    // how to show them. `wait` is the way to wait longer. Reads the recordings again.
    std::string Advice(const std::string& symbol, int dataType, const std::string& wait) const;

private:
    void AddFolders(feed::CMarketCatalog& catalog) const;

signals:
    // A sentence for the user; emitted on the feed's thread.
    void Notice(const QString& sentence);

private:
    const std::string m_folder; // may be empty
    std::unique_ptr<feed::CFeedServer> m_server;
};

} // namespace zantroq
