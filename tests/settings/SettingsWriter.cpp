// Writes a setting as a chart window does, "KEY NAME VALUE", and then stays idle until it is killed.
#include "platform/settings/SettingsKey.h"

#include <unistd.h>

int main(int argc, char** argv)
{
    if (argc != 4)
        return 2;
    const auto key = zantroq::OpenSettingsKey(argv[1]);
    if (!key->Write(argv[2], std::string(argv[3])))
        return 4;
    for (;;)
        ::pause();
}
