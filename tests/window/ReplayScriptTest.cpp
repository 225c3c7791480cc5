#include "replay/ReplayScript.h"

#include "replay/ReplayMessageBox.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

sReplayStep Only(const std::string& text)
{
    const sReplayScript script = ParseReplayScript(text);
    EXPECT_EQ(script.Error, "");
    EXPECT_EQ(script.Steps.size(), 1u);
    return script.Steps.empty() ? sReplayStep() : script.Steps.front();
}

std::string Wrong(const std::string& text)
{
    const sReplayScript script = ParseReplayScript(text);
    EXPECT_TRUE(script.Steps.empty());
    return script.Error;
}

TEST(ReplayScript, ReadsEveryStep)
{
    const sReplayScript script =
        ParseReplayScript("symbol MSFT\ndraw\ncommand 777\ntype minute\ninterval 15\n"
                          "mouse down 341 1 10 20\nmouse move 342 0 -1 5\nmouse up 351 2 3 4\n"
                          "key 341 0x41\nscroll page-left\nscroll thumb 12\nscroll track -3\n"
                          "resize 800 600\nmenu 32793\nmenu none\nanswer cancel\n"
                          "wait complete\nwait complete 2.5\nwait 250\nset GRID 0\n"
                          "print page.pdf\nsnapshot a.json\n"
                          "dialog page \"Upper Studies\"\ndialog set 308 Right\ndialog press 248\n"
                          "dialog double 329 2\ndialog ok\ndialog cancel\n");
    ASSERT_EQ(script.Error, "");
    ASSERT_EQ(script.Steps.size(), 28u);
    EXPECT_EQ(script.Steps[0].Text, "MSFT");
    EXPECT_EQ(script.Steps[2].Number, 777);
    EXPECT_EQ(script.Steps[3].Number, 1);
    EXPECT_EQ(script.Steps[4].Number, 6);
    EXPECT_NE(script.Steps[5].Run, script.Steps[6].Run) << "down and move";
    EXPECT_NE(script.Steps[6].Run, script.Steps[7].Run) << "move and up";
    EXPECT_EQ(script.Steps[5].X, 10);
    EXPECT_EQ(script.Steps[6].X, -1);
    EXPECT_EQ(script.Steps[7].Control, 351);
    EXPECT_EQ(script.Steps[7].Button, 2);
    EXPECT_EQ(script.Steps[8].Number, 0x41);
    EXPECT_EQ(script.Steps[9].Code, ScrollCode::PageLeft);
    EXPECT_NE(script.Steps[10].Run, script.Steps[11].Run) << "a thumb let go and a thumb dragged";
    EXPECT_EQ(script.Steps[11].Number, -3);
    EXPECT_EQ(script.Steps[12].Y, 600);
    EXPECT_EQ(script.Steps[13].Number, 32793);
    EXPECT_EQ(script.Steps[14].Number, 0);
    EXPECT_EQ(script.Steps[15].BoxReply, BoxAnswer::Cancel);
    EXPECT_EQ(script.Steps[16].Milliseconds, 30000);
    EXPECT_EQ(script.Steps[17].Milliseconds, 2500);
    EXPECT_EQ(script.Steps[18].Milliseconds, 250);
    EXPECT_EQ(script.Steps[19].Name, "GRID");
    EXPECT_NE(script.Steps[20].Run, script.Steps[21].Run) << "print and snapshot";
    EXPECT_EQ(script.Steps[21].Line, 22);
    EXPECT_EQ(script.Steps[22].Text, "Upper Studies");
    EXPECT_EQ(script.Steps[23].Number, 308);
    EXPECT_EQ(script.Steps[23].Text, "Right");
    EXPECT_EQ(script.Steps[25].X, 2);
    EXPECT_NE(script.Steps[26].Run, script.Steps[27].Run) << "OK and Cancel";
}

TEST(ReplayScript, QuotesHoldBlanksAndHashesAndCommentsEndALine)
{
    EXPECT_EQ(Only("  symbol \"A B#C\"   # the rest is not read \"").Text, "A B#C");
    EXPECT_EQ(Only("symbol \"\"").Text, "");
    EXPECT_EQ(Only("# nothing\r\n\r\n\t\ndraw\r\n").Line, 4);
    EXPECT_EQ(Only("set \"BB AVG PERIOD\" 30").Name, "BB AVG PERIOD");
}

TEST(ReplayScript, AColorIsNoCommentWhereADialogTakesIt)
{
    EXPECT_EQ(Only("dialog set 251 #0aB1c2").Text, "#0aB1c2");
    EXPECT_EQ(Only("dialog set 251 #0aB1c2 # with a comment").Text, "#0aB1c2");
    EXPECT_EQ(Only("dialog set 251 \"#0aB1c2\"").Text, "#0aB1c2");
    EXPECT_EQ(Only("dialog set 317 5 #0aB1c2").Text, "5");
    for (const char* text : {"dialog set 251 #0ab1c", "dialog set 251 #0ab1c2d", "dialog set 251 # 0ab1c2"})
        EXPECT_NE(Wrong(text).find("the value is missing"), std::string::npos) << text;
    EXPECT_NE(Wrong("dialog set #0aB1c2").find("the control is missing"), std::string::npos);
    EXPECT_NE(Wrong("symbol #0aB1c2").find("the symbol is missing"), std::string::npos);
}

TEST(ReplayScript, AnEmptyScriptHasNoSteps)
{
    const sReplayScript script = ParseReplayScript("");
    EXPECT_TRUE(script.Steps.empty());
    EXPECT_EQ(script.Error, "");
}

TEST(ReplayScript, AWrongLineIsNamedAndNoStepIsLeft)
{
    EXPECT_EQ(Wrong("draw\njump 3\n").substr(0, 29), "line 2: \"jump\" is not a step;");
    EXPECT_EQ(Wrong("symbol"), "line 1: symbol: the symbol is missing; write symbol TEXT");
    EXPECT_EQ(Wrong("draw now"), "line 1: draw: \"now\" is one word too many; write draw alone");
    EXPECT_EQ(Wrong("symbol \"A"), "line 1: a double quote is not closed; add the closing quote");
    EXPECT_EQ(
        Wrong("command 1234"),
        "line 1: command: there is no command 1234; use one of 774, 775, 776, 777, 778, 779, 32777, 32779, "
        "32780, 32782, 32783, 32784, 32785, 32786, 32787, 32788, 32789, 32790, 32791, 32792, 32793, 32794");
    EXPECT_EQ(Wrong("command x"),
              "line 1: command: the command \"x\" is not a whole number; use one within 0 and 65535");
    EXPECT_EQ(
        Wrong("type hourly"),
        "line 1: type: the type \"hourly\" is not offered; use one of tick, minute, daily, weekly, monthly");
    EXPECT_EQ(Wrong("interval 7").substr(0, 50), "line 1: interval: the interval \"7\" is not offered;");
    EXPECT_EQ(Wrong("mouse down 340 1 0 0"), "line 1: mouse: the control 340 is not within 341 and 351");
    EXPECT_EQ(Wrong("mouse down 341 3 0 0"), "line 1: mouse: the button 3 is not within 0 and 2");
    EXPECT_EQ(Wrong("mouse down 341 1 0"),
              "line 1: mouse: y is missing; write mouse down|move|up CONTROL BUTTON X Y");
    EXPECT_EQ(
        Wrong("scroll thumb"),
        "line 1: scroll: the position is missing; write scroll ACTION, scroll thumb N or scroll track N");
    EXPECT_EQ(Wrong("resize 0 5"), "line 1: resize: the width 0 is not within 1 and 16384");
    EXPECT_EQ(Wrong("answer maybe"),
              "line 1: answer: the answer \"maybe\" is not offered; use one of yes, no, ok, cancel");
    EXPECT_EQ(Wrong("wait"), "line 1: wait: the number of milliseconds is missing; write wait MS, wait "
                             "complete [S] or wait search [S]");
    EXPECT_EQ(Wrong("wait -1").substr(0, 44), "line 1: wait: the number of milliseconds -1 ");
    EXPECT_EQ(Wrong("wait complete soon"),
              "line 1: wait: the time \"soon\" is not a number of seconds from 0 to 86400");
    EXPECT_EQ(Wrong("snapshot a.gif"),
              "line 1: snapshot: the file \"a.gif\" does not end in .png, .svg, .pdf or .json");
    EXPECT_EQ(Wrong("snapshot .json"), "line 1: snapshot: the file \".json\" has no name before its ending; "
                                       "name it such as chart.png");
    EXPECT_EQ(Wrong("set NOTHING 1").substr(0, 23), "line 1: set: \"NOTHING\":");
    EXPECT_EQ(Wrong("set GRID maybe").substr(0, 19), "line 1: set: \"GRID\"");
}

TEST(ReplayScript, AWholeNumberOutOfRangeIsCalledThat)
{
    EXPECT_EQ(Wrong("scroll thumb 99999999999"),
              "line 1: scroll: the position 99999999999 is not within -2000000000 and 2000000000");
    EXPECT_EQ(Wrong("scroll track -99999999999"),
              "line 1: scroll: the position -99999999999 is not within -2000000000 and 2000000000");
    EXPECT_EQ(Wrong("wait 99999999999"),
              "line 1: wait: the number of milliseconds 99999999999 is not within 0 and 86400000");
    EXPECT_EQ(Wrong("key 341 0xfffffffff"),
              "line 1: key: the key code 0xfffffffff is not within -1 and 65535");
    for (const char* number : {"9x", "99999999999x", "0x", "", "-", "1.5"})
        EXPECT_EQ(Wrong("wait \"" + std::string(number) + "\""),
                  "line 1: wait: the number of milliseconds \"" + std::string(number) +
                      "\" is not a whole number; use one within 0 and 86400000");
}

TEST(ReplayScript, ANulByteIsNamedAndCutsNoSentence)
{
    using namespace std::string_literals;
    for (const std::string& text : {"type a\0b"s, "draw\0"s, "symbol \"a\0b\""s, "\0"s})
        EXPECT_EQ(Wrong(text), "line 1: a NUL byte stands in it; a script is plain text, take the byte out");
    EXPECT_EQ(ParseReplayScript("draw # a\0b"s).Error, "");
}

TEST(ReplayMessageBox, WithoutAQueuedAnswerItSaysNoOrOk)
{
    CReplayMessageBox box;
    EXPECT_EQ(box.Ask("t", "c", BoxButtons::YesNo, BoxIcon::Question), BoxAnswer::No);
    EXPECT_EQ(box.Ask("t", "c", BoxButtons::Ok, BoxIcon::Error), BoxAnswer::Ok);
}

TEST(ReplayMessageBox, QueuedAnswersComeInOrder)
{
    CReplayMessageBox box;
    box.Queue(BoxAnswer::Yes);
    box.Queue(BoxAnswer::No);
    EXPECT_EQ(box.Ask("t", "c", BoxButtons::YesNo, BoxIcon::Question), BoxAnswer::Yes);
    EXPECT_EQ(box.Ask("t", "c", BoxButtons::YesNo, BoxIcon::Question), BoxAnswer::No);
    EXPECT_EQ(box.Ask("t", "c", BoxButtons::YesNo, BoxIcon::Question), BoxAnswer::No);
}

} // namespace
} // namespace zantroq
