/* A host in C that links nothing of the chart. It knows the name "Brivane.Chart.1" alone:
 *     module-host [SYMBOL]             shows a chart until its window goes away
 *     module-host --register MODULE    lets the module write its registration records
 *     module-host --unregister MODULE  lets it remove them
 * zantroq-settings must be in PATH. */
#include <zantroq/module.h>

#include <dlfcn.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <xcb/xcb.h>

static int Fail(const char* what)
{
    fprintf(stderr, "module-host: %s\n", what);
    return 1;
}

/* The default value of a registration record; false if there is none. */
static int ReadRecord(const char* key, char* value, int room)
{
    char command[300];
    snprintf(command, sizeof command, "zantroq-settings --key 'Software\\Classes\\%s' get '' 2>/dev/null", key);
    FILE* pipe = popen(command, "r");
    value[0] = 0;
    if (pipe != NULL && fgets(value, room, pipe) != NULL)
        value[strcspn(value, "\n")] = 0;
    return pipe != NULL && pclose(pipe) == 0 && value[0] != 0;
}

static int ReadId(const char* text, sZantroqId* id)
{
    unsigned part[11];
    if (sscanf(text, "{%8x-%4x-%4x-%2x%2x-%2x%2x%2x%2x%2x%2x}", part, part + 1, part + 2, part + 3, part + 4,
               part + 5, part + 6, part + 7, part + 8, part + 9, part + 10) != 11)
        return 0;
    id->Data1 = part[0];
    id->Data2 = (uint16_t)part[1];
    id->Data3 = (uint16_t)part[2];
    for (int i = 0; i < 8; ++i)
        id->Data4[i] = (uint8_t)part[3 + i];
    return 1;
}

static void OnChanged(void* user, int32_t number)
{
    printf("%s: property %d has changed\n", (const char*)user, (int)number);
    fflush(stdout);
}

/* A window of this program with the chart in it, until the window goes away. */
static int Show(sZantroqFactory* factory, sZantroqControl* chart)
{
    xcb_connection_t* display = xcb_connect(NULL, NULL);
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(display)).data;
    const uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY, window = xcb_generate_id(display);
    xcb_create_window(display, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 900, 640, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, XCB_CW_EVENT_MASK, &mask);
    xcb_map_window(display, window);
    xcb_flush(display);
    int open = chart->Table->Place(chart, window) == ZANTROQ_OK;
    while (open && xcb_connection_has_error(display) == 0) {
        factory->Table->Pump(factory, 20);
        for (xcb_generic_event_t* event; (event = xcb_poll_for_event(display)) != NULL; free(event))
            open = open && (event->response_type & 0x7f) != XCB_DESTROY_NOTIFY;
    }
    xcb_disconnect(display);
    return 0;
}

static int ShowSymbol(sZantroqFactory* factory, const char* symbol)
{
    sZantroqControl* chart = NULL;
    if (factory->Table->Create(factory, &chart) != ZANTROQ_OK)
        return Fail("there is no X server");
    const sZantroqValue value = {ZANTROQ_TEXT, 0, symbol};
    chart->Table->Notify(chart, OnChanged, (void*)"chart");
    chart->Table->PutByName(chart, "StockSymbol", &value);
    const int result = Show(factory, chart);
    chart->Table->Release(chart);
    return result;
}

int main(int argc, char** argv)
{
    const char* registers = argc != 3                               ? NULL
                            : strcmp(argv[1], "--register") == 0   ? "DllRegisterServer"
                            : strcmp(argv[1], "--unregister") == 0 ? "DllUnregisterServer"
                                                                   : NULL;
    char number[100] = "", key[200], path[4096];
    sZantroqId type = ZANTROQ_CHART_CLASS;
    const sZantroqId offered = ZANTROQ_CHART_INTERFACE;
    if (registers != NULL) {
        snprintf(path, sizeof path, "%s", argv[2]);
    } else {
        if (!ReadRecord("Brivane.Chart.1\\CLSID", number, sizeof number) || !ReadId(number, &type))
            return Fail("Brivane.Chart.1 is not registered");
        snprintf(key, sizeof key, "CLSID\\%s\\InprocServer32", number);
        if (!ReadRecord(key, path, sizeof path))
            return Fail("the class of Brivane.Chart.1 has no module");
    }
    void* module = dlopen(path, RTLD_NOW | RTLD_LOCAL);
    if (module == NULL)
        return Fail(dlerror());
    if (registers != NULL)
        return ((ZantroqDllFunction)dlsym(module, registers))() == ZANTROQ_OK
                   ? 0
                   : Fail("the settings file takes no records");
    sZantroqFactory* factory = NULL;
    if (((ZantroqGetClassObject)dlsym(module, "DllGetClassObject"))(&type, &offered, &factory) != ZANTROQ_OK)
        return Fail("the module has no such class");
    const int result = ShowSymbol(factory, argc > 1 ? argv[1] : "SIM.CALM");
    factory->Table->Release(factory);
    if (((ZantroqDllFunction)dlsym(module, "DllCanUnloadNow"))() == ZANTROQ_OK && dlclose(module) == 0)
        printf("unloaded\n");
    return result;
}
