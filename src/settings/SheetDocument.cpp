#include "settings/SheetDocument.h"

#include "settings/SettingsTable.h"
#include "settings/pages/PageSettings.h"

namespace zantroq {
namespace {

constexpr const char* Pages = R"(
## The settings sheet

The "Settings" button of the toolbar opens a sheet with five pages. OK applies all pages together, stores only the differences,
and requests the chart again from the feed. Cancel, Escape and the close button change nothing. The sheet opens on the page that
was last visible in this run of the program. A page that is too large for the screen scrolls. If a page rejects its input, that
page is shown with a message, and the field that the message names gets the keyboard focus. If the settings file cannot be
written, the chart uses the changes nevertheless, and the status bar reports that they are not stored until they are.

Replay scripts use the numbers below for the controls. An edit with arrows has two numbers: one for its text, and one for the
number that the arrows change.

### Colors

![The page Colors](images/settings/colors.png)

Each button shows its color and opens the desktop's color dialog. The preview shows the colors of the price pane at once.

| control | setting |
|---|---|
| 251, 258 | background and grid of all panes |
| 252, 253 | labels and data of the price pane |
| 254, 255 | rising and falling candles |
| 256 | the price bar |
| 344 | the study to which the next two belong |
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

The two amounts share one stored value, so after a restart both have the value that was stored last.

### Data

![The page Data](images/settings/data.png)

Each data type has its own values of these fields, except 243 and 227; choosing another type shows the values last used for it.

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

Without "Save settings as default", the chart uses the fields but stores only data type and interval, as the two boxes in the
window do. With it, all request settings of all five types are stored. "Clear Saved Settings" asks for confirmation, deletes the
request settings from the store at once and shows the defaults; Cancel does not restore them.

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
| 334 | the kind of trendline to which the next ones belong |
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

Rows can be dragged into the list of displayed studies, out of it, and to another place. A study is displayed only once, so at
most ten are displayed. The edits of periods and levels accept any text; a text without a number counts as 0. A study that was
not selected keeps its values; leaving a selected study stores the values of its fields.

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
