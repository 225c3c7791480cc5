#include "settings/SheetDocument.h"

#include "settings/SettingsTable.h"
#include "settings/pages/PageSettings.h"

namespace zantroq {
namespace {

constexpr const char* Pages = R"(
## The settings sheet

The "Settings" button of the toolbar opens one sheet with five pages. OK takes over all pages together, stores what differs and
nothing else, and asks the feed for the chart anew. Cancel, Escape and the close button leave everything as it was. The sheet opens on
the page that was seen last in this run of the program. A page that refuses its fields comes to the front with a message, and the
keyboard goes to the field that the message names. Where the settings file cannot be written, the chart takes the change all the same,
and the status bar says that it could not be kept until it is.

The numbers below are those that replay scripts use for the controls. An edit with arrows has two: its text, and the number that the
arrows step.

### Colors

![The page Colors](images/settings/colors.png)

Each button shows its color and opens the desktop's color dialog on it. The preview shows the colors of the price pane at once.

| control | setting |
|---|---|
| 251, 258 | background and grid of all panes |
| 252, 253 | labels and data of the price pane |
| 254, 255 | rising and falling candles |
| 256 | the price bar |
| 344 | whose colors the next two are |
| 259, 264 | labels and data of that study |

### General

![The page General](images/settings/general.png)

| control | setting |
|---|---|
| 308 | the side of the value axis |
| 232 | data points shown |
| 231 | chart type |
| 233, 230 | grid on, and its style |
| 309, 310 | flexible or fixed scale |
| 311 | " Reset now": computes a fixed scale anew, once; checked when "Fixed scale" is chosen |
| 300, 301 | scrolling by per cent of the screen or by time increments |
| 304 and 305, 302 and 303 | the two amounts, 1 to 99 and 1 to 999 |

The two amounts stand on one stored value, so after a restart both are what was stored last.

### Data

![The page Data](images/settings/data.png)

Each data type has its own set of these fields but for 243 and 227; another type shows what was last used for it.

| control | setting |
|---|---|
| 229, 243 | data type, and the interval of minute data |
| 226, 227 | extended trades; prices in the exchange's own format |
| 316, 317 | load a number of points, 0 to 2,000,000; 0 asks for all |
| 315, 220 and 240 | load calendar days, 0 to 9999; 1 is the current day. Ticks and minutes only |
| 231 | load between dates. Ticks, minutes and daily data only |
| 233, 258, 234, 259 | start date and time, stop date and time |
| 235, 236, 237 | time-of-day filter, from and to. Ticks and minutes only |
| 223 | "Save settings as default" |
| 248 | "Clear Saved Settings" |

Without "Save settings as default" the chart takes the fields over and stores data type and interval only, as their boxes in the window
do. With it all request settings of all five types are stored. "Clear Saved Settings" asks, then removes them from the store at once and
shows the defaults; a Cancel does not bring them back.

### Upper Studies

![The page Upper Studies](images/settings/upper-studies.png)

| control | setting |
|---|---|
| 277, 276 | moving averages shown, exponential |
| 239, 237, 238 | each of the three averages on |
| 255 and 254, 256 and 257, 258 and 259 | their periods; the arrows step from 1 to 999 |
| 280, 281, 262 | their colors |
| 272, 265 | Bollinger Bands shown, their color |
| 273 and 274 | period of the bands, 2 to 999 |
| 275 | number of deviations, 0.01 to 100 |
| 334 | whose look the next ones are: a kind of trendline |
| 338, 337, 320 and 284 | extended to the right, color, width from 1 to 99 pixels |
| 1001 | a sample of the line |

### Lower Studies

![The page Lower Studies](images/settings/lower-studies.png)

| control | setting |
|---|---|
| 328, 329 | all studies, and those that are displayed, from top to bottom |
| 330, 340 | "Add" puts the selected study at the end, "Remove" takes it away; a double click does the same |
| 331, 332 | "Up" and "Down" |
| 335 | the properties of the study that was selected last in either list |
| 336 | whether that study is displayed |
| 202, 203, 204, 294 | its period: the choices, and the custom one |
| 269 and 271 | the custom period; of MACD the short period |
| 282 and 284, 285 and 286 | upper and lower level; of MACD the long and the signal period |
| 292, 293 | colors of the levels |
| 297, 300 | colors of a zero line, of further lines, of the histogram |
| 295, 296 | slow or fast stochastics |
| 339, 301 | average of the volume shown, its color |
| 287 to 291, 298 | the labels |

Rows can be dragged: into the displayed studies, out of them, and to another place. A study is displayed once, so at most ten are.
Edits of periods and levels take any text; a text that is no number counts as 0. A study that was not selected keeps its values; leaving
one that was stores what its choice stands for.

### Settings that are on no page

)";

} // namespace

std::string SheetDocument()
{
    std::string text = Pages;
    text += "| Number | Name | Why |\n|---|---|---|\n";
    for (const sOffSheet& off : SettingsOnNoPage())
        text += "| " + std::to_string(off.Id) + " | `\"" + std::string(SettingName(off.Id)) + "\"` | " +
                off.Reason + " |\n";
    return text;
}

} // namespace zantroq
