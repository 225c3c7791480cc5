// Controls of the module in windows of its host, on an X server of the test's own. The host is this program,
// which has no Qt.
#include "control/module/LoadedModule.h"

#include <csignal>
#include <cstdio>
#include <memory>
#include <xcb/xcb.h>

namespace zantroq::test {
namespace {

template<class TReply> using CReply = std::unique_ptr<TReply, decltype(&std::free)>;

class CServer
{
public:
    CServer()
    {
        // Only the number of the display is read: a server that finds a number taken says so on standard error.
        m_pipe =
            popen("echo $$; exec Xvfb -displayfd 1 -screen 0 1280x960x24 -nolisten tcp 2>/dev/null", "r");
        m_process = std::atoi(Line().c_str());
        setenv("DISPLAY", (":" + Line()).c_str(), 1);
    }
    ~CServer()
    {
        kill(m_process, SIGTERM);
        pclose(m_pipe);
    }

private:
    std::string Line() const
    {
        char line[100]{};
        EXPECT_NE(std::fgets(line, sizeof line, m_pipe), nullptr);
        return std::string(line).substr(0, std::string(line).find('\n'));
    }

    FILE* m_pipe = nullptr;
    pid_t m_process = 0;
};

class ModuleInAWindow : public CLoadedModule
{
protected:
    void SetUp() override
    {
        static const CServer
            server; // one for all tests, since a toolkit's application may keep to its display
        unsetenv("QT_QPA_PLATFORM");
        CLoadedModule::SetUp();
        m_display = xcb_connect(nullptr, nullptr);
        ASSERT_EQ(xcb_connection_has_error(m_display), 0);
    }
    void TearDown() override
    {
        xcb_disconnect(m_display);
        CLoadedModule::TearDown();
    }

    xcb_window_t MakeWindow(std::uint16_t width, std::uint16_t height) const
    {
        const xcb_screen_t* const screen = xcb_setup_roots_iterator(xcb_get_setup(m_display)).data;
        const xcb_window_t window = xcb_generate_id(m_display);
        xcb_create_window(m_display, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, width, height, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, 0, nullptr);
        xcb_map_window(m_display, window);
        Sync();
        return window;
    }
    void Sync() const
    {
        const CReply<xcb_get_input_focus_reply_t> reply(
            xcb_get_input_focus_reply(m_display, xcb_get_input_focus(m_display), nullptr), &std::free);
    }
    // Place, size and state of the one window inside of a window; empty for another number of them.
    std::string Inside(xcb_window_t window) const
    {
        const CReply<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(m_display, xcb_query_tree(m_display, window), nullptr), &std::free);
        if (tree == nullptr || xcb_query_tree_children_length(tree.get()) != 1)
            return "";
        const xcb_window_t child = *xcb_query_tree_children(tree.get());
        const CReply<xcb_get_geometry_reply_t> place(
            xcb_get_geometry_reply(m_display, xcb_get_geometry(m_display, child), nullptr), &std::free);
        const CReply<xcb_get_window_attributes_reply_t> state(
            xcb_get_window_attributes_reply(m_display, xcb_get_window_attributes(m_display, child), nullptr),
            &std::free);
        if (place == nullptr || state == nullptr)
            return "";
        return std::to_string(place->x) + ',' + std::to_string(place->y) + ' ' +
               std::to_string(place->width) + 'x' + std::to_string(place->height) +
               (state->map_state == XCB_MAP_STATE_VIEWABLE ? "" : " hidden");
    }
    bool AwaitInside(xcb_window_t window, const std::string& expected) const
    {
        return PumpUntil([&] { return Inside(window) == expected; });
    }
    void Resize(xcb_window_t window, std::uint32_t width, std::uint32_t height) const
    {
        const std::uint32_t values[]{width, height};
        xcb_configure_window(m_display, window, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, values);
        Sync();
    }
    void Destroy(xcb_window_t window) const
    {
        xcb_destroy_window(m_display, window);
        Sync();
    }

    xcb_connection_t* m_display = nullptr;
};

} // namespace

TEST_F(ModuleInAWindow, AControlFillsItAndFollowsItsSize)
{
    const xcb_window_t window = MakeWindow(640, 480);
    sZantroqControl* const control = Create();
    EXPECT_EQ(control->Table->Place(control, window), ZANTROQ_OK);
    EXPECT_EQ(PutSymbol(control, "AAA"), ZANTROQ_OK);
    EXPECT_TRUE(AwaitInside(window, "0,0 640x480")) << Inside(window);
    Resize(window, 700, 333);
    EXPECT_TRUE(AwaitInside(window, "0,0 700x333")) << Inside(window);
    control->Table->Release(control);
    EXPECT_TRUE(AwaitInside(window, "")) << Inside(window);
    Destroy(window);
}

TEST_F(ModuleInAWindow, AControlMovesToAnotherWindowAndToOneOfItsOwn)
{
    const xcb_window_t first = MakeWindow(640, 480), second = MakeWindow(500, 400);
    sZantroqControl* const control = Create();
    EXPECT_EQ(control->Table->Place(control, first), ZANTROQ_OK);
    EXPECT_TRUE(AwaitInside(first, "0,0 640x480")) << Inside(first);
    EXPECT_EQ(control->Table->Place(control, second), ZANTROQ_OK);
    EXPECT_TRUE(AwaitInside(second, "0,0 500x400")) << Inside(second);
    EXPECT_EQ(Inside(first), "");
    EXPECT_EQ(control->Table->Place(control, 0), ZANTROQ_OK);
    EXPECT_TRUE(AwaitInside(second, "")) << Inside(second);
    EXPECT_EQ(control->Table->Place(control, first), ZANTROQ_OK);
    EXPECT_TRUE(AwaitInside(first, "0,0 640x480")) << Inside(first);
    control->Table->Release(control);
}

TEST_F(ModuleInAWindow, AControlWhoseWindowHasGoneIsPlacedInAnother)
{
    const xcb_window_t first = MakeWindow(640, 480);
    sZantroqControl* const control = Create();
    EXPECT_EQ(control->Table->Place(control, first), ZANTROQ_OK);
    EXPECT_TRUE(AwaitInside(first, "0,0 640x480")) << Inside(first);
    Destroy(first);
    for (int k = 0; k < 5; ++k)
        EXPECT_EQ(m_factory->Table->Pump(m_factory, 10), ZANTROQ_OK);
    EXPECT_EQ(PutSymbol(control, "AAA"), ZANTROQ_OK);
    EXPECT_EQ(PutNumber(control, "Appearance", ZANTROQ_INTEGER, 1), ZANTROQ_OK);
    const xcb_window_t second = MakeWindow(500, 400);
    EXPECT_EQ(control->Table->Place(control, second), ZANTROQ_OK);
    EXPECT_TRUE(AwaitInside(second, "0,0 500x400")) << Inside(second);
    control->Table->Release(control);
}

TEST_F(ModuleInAWindow, AWindowThatDoesNotExistLeavesTheControlWhereItIs)
{
    const xcb_window_t window = MakeWindow(640, 480);
    sZantroqControl* const control = Create();
    EXPECT_EQ(control->Table->Place(control, window), ZANTROQ_OK);
    EXPECT_EQ(control->Table->Place(control, 0x1234567), ZANTROQ_NO_WINDOW);
    EXPECT_TRUE(AwaitInside(window, "0,0 640x480")) << Inside(window);
    control->Table->Release(control);
}

TEST_F(ModuleInAWindow, AControlThatMayPlaceItsWindowLeavesTheHostsAlone)
{
    const xcb_window_t window = MakeWindow(640, 480);
    sZantroqControl* const control = Create();
    EXPECT_EQ(control->Table->Place(control, window), ZANTROQ_OK);
    EXPECT_EQ(PutNumber(control, "ResizeParentWindow", ZANTROQ_BOOLEAN, 1), ZANTROQ_OK);
    EXPECT_EQ(PutSymbol(control, "AAA"), ZANTROQ_OK);
    EXPECT_TRUE(PumpUntil([this] { return m_feed.Level1.Received().find("wAAA") != std::string::npos; }));
    EXPECT_TRUE(AwaitInside(window, "0,0 640x480")) << Inside(window);
    const CReply<xcb_get_geometry_reply_t> place(
        xcb_get_geometry_reply(m_display, xcb_get_geometry(m_display, window), nullptr), &std::free);
    ASSERT_NE(place, nullptr);
    EXPECT_EQ(place->width, 640);
    EXPECT_EQ(place->height, 480);
    control->Table->Release(control);
}

TEST_F(ModuleInAWindow, WithoutAnXServerThereIsNoControl)
{
    const std::string display = std::getenv("DISPLAY");
    setenv("DISPLAY", ":12345", 1);
    sZantroqControl* control = nullptr;
    EXPECT_EQ(m_factory->Table->Create(m_factory, &control), ZANTROQ_NO_DISPLAY);
    EXPECT_EQ(control, nullptr);
    setenv("DISPLAY", display.c_str(), 1);
    EXPECT_EQ(m_factory->Table->Create(m_factory, &control), ZANTROQ_OK);
    control->Table->Release(control);
}

TEST_F(ModuleInAWindow, ItLeavesNoThreadAndNoDescriptorBehind)
{
    const xcb_window_t window = MakeWindow(640, 480);
    const auto life = [&] {
        sZantroqControl* const control = Create();
        EXPECT_EQ(control->Table->Place(control, window), ZANTROQ_OK);
        EXPECT_EQ(PutSymbol(control, "AAA"), ZANTROQ_OK);
        EXPECT_TRUE(PumpUntil([this] { return m_feed.Level1.Received().find("wAAA") != std::string::npos; }));
        control->Table->Release(control);
        EXPECT_TRUE(PumpUntil([this] { return m_feed.Lookup.PeerClosed() && m_feed.Level1.PeerClosed(); }));
        Unload();
    };
    life(); // from here on everything that the toolkit keeps for good exists
    const sHeld before;
    for (int round = 0; round < 3; ++round) {
        Load();
        life();
        EXPECT_EQ(sHeld(), before) << round;
    }
}

} // namespace zantroq::test
