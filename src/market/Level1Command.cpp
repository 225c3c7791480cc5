#include "market/Level1Command.h"

#include "market/HistoryCommand.h"

namespace zantroq {

namespace {

std::string SymbolCommand(char letter, std::string_view symbol)
{
    std::string line(1, letter);
    line += symbol;
    return line + "\r\n";
}

} // namespace

std::string Level1SetupText()
{
    std::string text = std::string(SetClientNameLine) + SetProtocolLine + "S,SELECT UPDATE FIELDS,";
    for (std::size_t position = 1; position < Level1FieldNames.size(); ++position) {
        text += ',';
        text += Level1FieldNames[position];
    }
    return text + '\n';
}

std::string WatchCommand(std::string_view symbol)
{
    return SymbolCommand('w', symbol);
}

std::string RemoveCommand(std::string_view symbol)
{
    return SymbolCommand('r', symbol);
}

} // namespace zantroq
