/** @file
 * The chart as an in-process module, for hosts in C and in any language that can call C. The host links nothing of
 * the chart: it finds the module's path in the user's registration records, loads it with dlopen, and asks
 * DllGetClassObject for the class factory, which makes controls.
 *
 * **Registration records** are values of keys below `Software\Classes` in the user's settings file. The default value
 * of `Brivane.Chart.1\CLSID` is the number of the class; the default value of `CLSID\NUMBER\InprocServer32` is
 * the module's path.
 *
 * **Threads.** Make all calls on one thread. In a process with a QApplication this is the QApplication's thread; in
 * any other process it is the thread that creates the first control. Calls on another thread fail with
 * ZANTROQ_WRONG_THREAD while there is a QApplication.
 *
 * **Event loop.** In a process with a QApplication the controls live on the QApplication's own event loop. In any
 * other process the module creates a QApplication with the first control, and the host calls Pump of the factory from
 * its own loop: 50 times a second for a chart that follows the mouse without a visible delay. A modal dialog of the
 * chart, such as the settings sheet, keeps the call in which it opened until the user closes it.
 *
 * **Results.** 0 is success. A negative result is a failure that changed nothing, unless the function says otherwise.
 * No exception leaves the module. Texts are UTF-8 and end with a null byte. Pointers to texts, values and results
 * must not be null unless the function says otherwise; a null pointer gives ZANTROQ_BAD_POINTER.
 *
 * The header compiles as C11 and as C++. */
#ifndef ZANTROQ_MODULE_H
#define ZANTROQ_MODULE_H

#include <zantroq/Export.h>

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Success. */
#define ZANTROQ_OK 0
/** From DllCanUnloadNow: controls or references to the factory exist. */
#define ZANTROQ_IN_USE 1
/** Any other failure. */
#define ZANTROQ_FAILED ((int32_t)0x80004005)
/** A pointer was null. */
#define ZANTROQ_BAD_POINTER ((int32_t)0x80004003)
/** A value out of range, or bytes that Save has not written. */
#define ZANTROQ_BAD_VALUE ((int32_t)0x80070057)
/** Save: the room is smaller than the bytes. */
#define ZANTROQ_NO_ROOM ((int32_t)0x8007007A)
/** DllGetClassObject: the class's controls do not offer this interface. */
#define ZANTROQ_NO_INTERFACE ((int32_t)0x80004002)
/** DllGetClassObject: the module does not have this class. */
#define ZANTROQ_NO_CLASS ((int32_t)0x80040111)
/** The records of the type library could not be written or removed. */
#define ZANTROQ_NO_TYPE_LIBRARY ((int32_t)0x80040200)
/** The records of the class could not be written or removed. */
#define ZANTROQ_NO_REGISTRATION ((int32_t)0x80040201)
/** No property has this name or number. */
#define ZANTROQ_NO_PROPERTY ((int32_t)0x80020006)
/** The value's type is not the property's. */
#define ZANTROQ_WRONG_TYPE ((int32_t)0x80020005)
/** The call was made on another thread than the QApplication's. */
#define ZANTROQ_WRONG_THREAD ((int32_t)0x8001010E)
/** Pump: called inside a notification. */
#define ZANTROQ_BUSY ((int32_t)0x8001010A)
/** Create: there is no X server, or the process has a QCoreApplication that shows no windows. */
#define ZANTROQ_NO_DISPLAY ((int32_t)0x80040202)
/** Place: there is no such window, or the display is not an X11 display. */
#define ZANTROQ_NO_WINDOW ((int32_t)0x80040203)

/** Dispatch number of StockSymbol, a text. */
#define ZANTROQ_STOCK_SYMBOL 1
/** Dispatch number of ResizeParentWindow, a boolean. It moves a top-level window that the control has to itself, never
 * an X11 window of the host. */
#define ZANTROQ_RESIZE_PARENT_WINDOW 2
/** Dispatch number of Appearance, an integer: 0 flat, 1 sunken. */
#define ZANTROQ_APPEARANCE (-520)
/** Dispatch number of BorderStyle, an integer: 0 none, 1 single line. */
#define ZANTROQ_BORDER_STYLE (-504)
/** Dispatch number of Enabled, a boolean. */
#define ZANTROQ_ENABLED (-514)

/** The number that identifies a class or an interface. */
typedef struct sZantroqId
{
    uint32_t Data1;   /**< the first eight digits */
    uint16_t Data2;   /**< the next four */
    uint16_t Data3;   /**< the next four */
    uint8_t Data4[8]; /**< the last sixteen, two each */
} sZantroqId;

/* clang-format off */
/** Initializer of the control class "Brivane.Chart.1", {48876666-91D5-11D1-8A25-00AA00B7CA93}. */
#define ZANTROQ_CHART_CLASS {0x48876666, 0x91D5, 0x11D1, {0x8A, 0x25, 0x00, 0xAA, 0x00, 0xB7, 0xCA, 0x93}}
/** Initializer of the interface of its controls, `_DChart`, {48876664-91D5-11D1-8A25-00AA00B7CA93}. */
#define ZANTROQ_CHART_INTERFACE {0x48876664, 0x91D5, 0x11D1, {0x8A, 0x25, 0x00, 0xAA, 0x00, 0xB7, 0xCA, 0x93}}
/* clang-format on */

/** The types of property values. */
enum
{
    ZANTROQ_TEXT = 1,    /**< in Text */
    ZANTROQ_BOOLEAN = 2, /**< in Number, 0 or 1 */
    ZANTROQ_INTEGER = 3  /**< in Number */
};

/** The value of a property. */
typedef struct sZantroqValue
{
    int32_t Type;     /**< ZANTROQ_TEXT, ZANTROQ_BOOLEAN or ZANTROQ_INTEGER */
    int32_t Number;   /**< the value of the other two types; 0 for a text */
    const char* Text; /**< the value of ZANTROQ_TEXT, else null */
} sZantroqValue;

/** A host's function that is called after a property has changed: inside the call that changed it, or of Pump. It
 * may make any call on the control, also release its last reference, which then takes effect when the call that
 * changed the property is done. It must not call Pump, nor throw.
 * @param user the pointer that the host passed to Notify
 * @param number the property's dispatch number */
typedef void (*ZantroqChanged)(void* user, int32_t number);

/** A control. */
typedef struct sZantroqControl sZantroqControl;
/** The class factory. */
typedef struct sZantroqFactory sZantroqFactory;

/** The calls of a control. Each takes the control first. Later versions of the module append calls. */
typedef struct sZantroqControlTable
{
    size_t Size; /**< of the table in bytes; an older module has a shorter table */

    /** Adds a reference. @return the number of references */
    uint32_t (*AddRef)(sZantroqControl* control);
    /** Removes a reference; with the last one the control ends. @return the number of references */
    uint32_t (*Release)(sZantroqControl* control);
    /** Finds the dispatch number of a property.
     * @param name exact, such as "StockSymbol"
     * @param number where the dispatch number goes
     * @return ZANTROQ_NO_PROPERTY for other names */
    int32_t (*NumberOf)(sZantroqControl* control, const char* name, int32_t* number);
    /** Reads a property.
     * @param value where the value goes; a text in it is valid until the next call on the control
     * @return ZANTROQ_NO_PROPERTY for other numbers */
    int32_t (*Get)(sZantroqControl* control, int32_t number, sZantroqValue* value);
    /** Writes a property. Notifies if the value has changed. A new chart is drawn whenever StockSymbol is
     * written, also with the same symbol.
     * @return ZANTROQ_NO_PROPERTY, ZANTROQ_WRONG_TYPE, or ZANTROQ_BAD_VALUE for a number other than 0 and 1 */
    int32_t (*Put)(sZantroqControl* control, int32_t number, const sZantroqValue* value);
    /** Get, by the property's name. */
    int32_t (*GetByName)(sZantroqControl* control, const char* name, sZantroqValue* value);
    /** Put, by the property's name. */
    int32_t (*PutByName)(sZantroqControl* control, const char* name, const sZantroqValue* value);
    /** Shows the control inside an X11 window of the process's display, fills it and follows its size. It may be
     * called again with another window. When the window goes away, the control stays without a window until it is
     * placed again or released.
     * @param window the number of the X11 window; 0 shows the control in a top-level window of its own
     * @return ZANTROQ_NO_WINDOW if there is no such window */
    int32_t (*Place)(sZantroqControl* control, uint32_t window);
    /** Writes Appearance, BorderStyle and Enabled with a version number as bytes that the host keeps. StockSymbol and
     * ResizeParentWindow are not among them; a host sets these every time.
     * @param bytes where the bytes go; null to get only the size
     * @param room the number of bytes that fit
     * @param size where the number of bytes goes, also with ZANTROQ_NO_ROOM
     * @return ZANTROQ_NO_ROOM if they do not fit */
    int32_t (*Save)(sZantroqControl* control, uint8_t* bytes, size_t room, size_t* size);
    /** Sets the properties from bytes that Save has written.
     * @return ZANTROQ_BAD_VALUE for other bytes, or bytes of another version */
    int32_t (*Load)(sZantroqControl* control, const uint8_t* bytes, size_t size);
    /** Sets the function that is called after a property has changed; each control has one.
     * @param changed the function; null ends the notification
     * @param user handed to the function; may be null */
    int32_t (*Notify)(sZantroqControl* control, ZantroqChanged changed, void* user);
} sZantroqControlTable;

/** A control: `control->Table->Get(control, ...)`. */
struct sZantroqControl
{
    const sZantroqControlTable* Table; /**< its calls */
};

/** The calls of the class factory. Each takes the factory first. Later versions of the module append calls. */
typedef struct sZantroqFactoryTable
{
    size_t Size; /**< of the table in bytes */

    /** Adds a reference. @return the number of references */
    uint32_t (*AddRef)(sZantroqFactory* factory);
    /** Removes a reference. @return the number of references */
    uint32_t (*Release)(sZantroqFactory* factory);
    /** Creates a control that is not visible yet. The first control of the process also starts the worker with the
     * connections to the feed, and waits for these, a second at most.
     * @param control where the control goes, with one reference; null after a failure */
    int32_t (*Create)(sZantroqFactory* factory, sZantroqControl** control);
    /** Handles the events of the controls, in a process whose loop is not Qt's.
     * @param milliseconds how long to wait for the first event at most; 0 does not wait
     * @return ZANTROQ_BAD_VALUE for a negative time, ZANTROQ_BUSY inside a notification */
    int32_t (*Pump)(sZantroqFactory* factory, int32_t milliseconds);
} sZantroqFactoryTable;

/** The class factory: `factory->Table->Create(factory, ...)`. */
struct sZantroqFactory
{
    const sZantroqFactoryTable* Table; /**< its calls */
};

/** The type of DllRegisterServer, DllUnregisterServer and DllCanUnloadNow, to cast dlsym's result to. */
typedef int32_t (*ZantroqDllFunction)(void);
/** The type of DllGetClassObject, to cast dlsym's result to. */
typedef int32_t (*ZantroqGetClassObject)(const sZantroqId* type, const sZantroqId* offered,
                                         sZantroqFactory** factory);

/** Writes the user's registration records in this order: type library, class, the two component categories, the
 * categories that the class implements. A failure of the last two skips the rest and is not reported. After a
 * failure the records that were written before stay; DllUnregisterServer removes them.
 * @return ZANTROQ_NO_TYPE_LIBRARY or ZANTROQ_NO_REGISTRATION if the settings file takes no records */
ZANTROQ_CHART_EXPORT int32_t DllRegisterServer(void);

/** Removes the records of the type library, then the records of the class. Missing records are no failure. The two
 * component categories stay, since other classes may implement them.
 * @return ZANTROQ_NO_TYPE_LIBRARY or ZANTROQ_NO_REGISTRATION if records stay that should not */
ZANTROQ_CHART_EXPORT int32_t DllUnregisterServer(void);

/** Finds the class factory.
 * @param type the class, ZANTROQ_CHART_CLASS
 * @param offered the interface of the controls, ZANTROQ_CHART_INTERFACE
 * @param factory where the factory goes, with one reference; null after a failure
 * @return ZANTROQ_NO_CLASS or ZANTROQ_NO_INTERFACE for other numbers */
ZANTROQ_CHART_EXPORT int32_t DllGetClassObject(const sZantroqId* type, const sZantroqId* offered,
                                               sZantroqFactory** factory);

/** Whether dlclose may follow. If so, this ends the QApplication that the module has created; a control created
 * later makes a new one.
 * @return ZANTROQ_OK, or ZANTROQ_IN_USE while a control or a reference to the factory exists */
ZANTROQ_CHART_EXPORT int32_t DllCanUnloadNow(void);

#ifdef __cplusplus
}
#endif

#endif
