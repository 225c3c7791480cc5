// Prints docs/settings.md.
#include "settings/SettingsDocument.h"

#include <iostream>

int main()
{
    std::cout << zantroq::SettingsDocument() << std::flush;
    return std::cout ? 0 : 4;
}
