#include "feed/markets/SimulatedSymbols.h"

#include <array>
#include <string>
#include <string_view>

namespace zantroq::feed {
namespace {

struct sPART
{
    std::string_view Letters, Text;
};

// All letter groups differ, so all symbols differ.
constexpr std::array Names{
    sPART{"ABE", "Aberlan"},        sPART{"ALD", "Aldora"},       sPART{"AMB", "Ambrel"},
    sPART{"ARV", "Arvenne"},        sPART{"BAL", "Balcora"},      sPART{"BEL", "Bellhaven"},
    sPART{"BOR", "Borveld"},        sPART{"BRI", "Brindal"},      sPART{"CAL", "Calvere"},
    sPART{"CAS", "Castrel"},        sPART{"COR", "Corvanne"},     sPART{"CRE", "Creston Vale"},
    sPART{"DAL", "Dalmere"},        sPART{"DEL", "Delvonia"},     sPART{"DOR", "Dorrand"},
    sPART{"DUN", "Dunhallow"},      sPART{"EDE", "Edenmoor"},     sPART{"ELD", "Eldervane"},
    sPART{"ERS", "Erskolm"},        sPART{"EST", "Estravel"},     sPART{"FAL", "Falkmere"},
    sPART{"FEN", "Fenwald"},        sPART{"FJO", "Fjordåsen"},    sPART{"FOL", "Folcrest"},
    sPART{"GAL", "Galvenor"},       sPART{"GRE", "Grendel Hill"}, sPART{"GUL", "Gulvane"},
    sPART{"HAL", "Halverton"},      sPART{"HEL", "Helmora"},      sPART{"HOL", "Holvard"},
    sPART{"ILM", "Ilmenau"},        sPART{"IRO", "Ironmere"},     sPART{"JAR", "Jarlsund"},
    sPART{"JUN", "Junivere"},       sPART{"KAL", "Kalverne"},     sPART{"KES", "Kestrane"},
    sPART{"KOL", "Kölndal"},        sPART{"LAN", "Lanvere"},      sPART{"LOR", "Lorvanna"},
    sPART{"LUM", "Lumeris"},        sPART{"MAL", "Malvorne"},     sPART{"MER", "Merrowdale"},
    sPART{"MON", "Montévan"},       sPART{"NAL", "Nalvera"},      sPART{"NOR", "Nordhaven"},
    sPART{"OLM", "Olmstead Ridge"}, sPART{"ORV", "Orvelle"},      sPART{"PEL", "Pelmora"},
    sPART{"PRI", "Prinvale"},       sPART{"QUE", "Quenmere"},     sPART{"RAV", "Ravendal"},
    sPART{"ROS", "Rosvane"},        sPART{"SAL", "Salmere"},      sPART{"SEL", "Selwynne"},
    sPART{"SOL", "Solvanna"},       sPART{"TAL", "Talvere"},      sPART{"THO", "Thornvale"},
    sPART{"ULM", "Ulmendorf"},      sPART{"VAL", "Valdorne"},     sPART{"WES", "Westmarch"},
    sPART{"YAR", "Yarvane"},        sPART{"ZEL", "Zelmora"}};

constexpr std::array Trades{sPART{"A", "Airlines"},   sPART{"B", "Brewing"},   sPART{"C", "Copper Mining"},
                            sPART{"D", "Dairies"},    sPART{"E", "Energy"},    sPART{"F", "Foods"},
                            sPART{"G", "Glassworks"}, sPART{"M", "Motors"},    sPART{"P", "Paper"},
                            sPART{"R", "Railways"},   sPART{"S", "Shipyards"}, sPART{"T", "Telephone"}};

struct sKIND
{
    std::string_view Letters, Text;
    int SecurityTypeId;
};

constexpr std::array Kinds{
    sKIND{"", "Ltd.", SimulatedEquityId},         sKIND{"H", "Holding", SimulatedEquityId},
    sKIND{"P", "preferred", SimulatedEquityId},   sKIND{"X", "sector index", SimulatedIndexId},
    sKIND{"U", "June future", SimulatedFutureId}, sKIND{"Z", "December future", SimulatedFutureId},
    sKIND{"B", "4% bond", SimulatedBondId}};

constexpr int Exchanges = 3;

static_assert(Names.size() * Trades.size() * Kinds.size() > 5'000);

} // namespace

std::vector<sLISTED_SYMBOL> SimulatedSymbols()
{
    std::vector<sLISTED_SYMBOL> symbols;
    symbols.reserve(Names.size() * Trades.size() * Kinds.size());
    for (const sPART& name : Names)
        for (const sPART& trade : Trades) {
            // All securities of a company are listed on one exchange.
            const int exchange = FirstSimulatedExchangeId + (name.Letters[1] + trade.Letters[0]) % Exchanges;
            for (const sKIND& kind : Kinds)
                symbols.push_back({"SIM." + std::string(name.Letters) + std::string(trade.Letters) +
                                       std::string(kind.Letters),
                                   exchange, kind.SecurityTypeId,
                                   std::string(name.Text) + ' ' + std::string(trade.Text) + ' ' +
                                       std::string(kind.Text) + " (simulated)"});
        }
    return symbols;
}

} // namespace zantroq::feed
