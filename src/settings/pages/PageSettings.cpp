#include "settings/pages/PageSettings.h"

#include <array>

namespace zantroq {
namespace {

// VolumeLabel Color belongs to the color page although no control shows it.
constexpr std::array Colors{32828, 32836, 32829, 32832, 32855, 32856, 32897, 32886, 32885, 32830};

constexpr std::array General{32793, 32787, 32785, 32788, 32794, 32854, 32790, 32792, 32791};

constexpr std::array Data{32904, 32908, 32919, 32920, 32909, 32910, 32912,
                          32913, 32914, 32916, 32917, 32911, 32915, 32918};

constexpr std::array Upper{32795, 32839, 32840, 32841, 32833, 32842, 32843, 32834, 32844,
                           32845, 32835, 32798, 32799, 32800, 32801, 32861, 32868, 32875,
                           32862, 32869, 32876, 32863, 32870, 32877, 32864, 32871, 32878,
                           32865, 32872, 32879, 32866, 32873, 32880, 32867, 32874, 32881};

constexpr std::array Lower{32882, 32883, 32905, 32906, 32804, 32805, 32806, 32807, 32808, 32811, 32812,
                           32813, 32814, 32809, 32810, 32815, 32816, 32817, 32818, 32819, 32820, 32857,
                           32821, 32822, 32823, 32824, 32826, 32825, 32903, 32827, 32860, 32789, 32831,
                           32887, 32889, 32888, 32890, 32891, 32892, 32893, 32894, 32901, 32900, 32899};

constexpr const char* ByLayout = "the layout of the panes in the window is its editor";
constexpr const char* OlderForm = "an older form that vanishes when it is read";
constexpr const char* WithoutUse = "no operation uses it";

constexpr std::array<sOffSheet, 14> OnNoPage{{
    {32898, "the toolbar's price bar button switches it"},
    {32902, "it has no control; replay scripts and zantroq-settings set it"},
    {32907, "kept as stored; the load choices of the data page are in \"RequestRecentType\""},
    {32884, ByLayout},
    {32895, ByLayout},
    {32896, ByLayout},
    {32802, OlderForm},
    {32803, OlderForm},
    {32796, WithoutUse},
    {32797, WithoutUse},
    {32837, WithoutUse},
    {32838, WithoutUse},
    {32858, WithoutUse},
    {32859, WithoutUse},
}};

} // namespace

std::span<const int> SettingsOfPage(int page)
{
    switch (page) {
    case 0:
        return Colors;
    case 1:
        return General;
    case 2:
        return Data;
    case 3:
        return Upper;
    case 4:
        return Lower;
    default:
        return {};
    }
}

std::span<const sOffSheet> SettingsOnNoPage()
{
    return OnNoPage;
}

int SheetOrder(int id)
{
    int order = 0;
    for (int page = 0; page < 5; ++page)
        for (const int field : SettingsOfPage(page)) {
            if (field == id)
                return order;
            ++order;
        }
    return order;
}

} // namespace zantroq
