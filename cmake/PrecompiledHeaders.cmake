# A build spends most of its time parsing the same headers of the standard library, Qt and GoogleTest for each file. With
# precompiled headers they are parsed once per library and once for all test programs. Our own headers are not included. Every
# file still includes what it uses, which builds without precompiled headers check. With ccache they are off, because ccache hits
# more often without them; -DZANTROQ_CCACHE=OFF prefers them.
set(precompile ON)
if(CMAKE_CXX_COMPILER_LAUNCHER MATCHES "ccache")
    set(precompile OFF)
endif()
option(ZANTROQ_PCH "Precompile the headers of other libraries" ${precompile})

set(ZANTROQ_STANDARD_HEADERS
    <algorithm> <array> <charconv> <chrono> <cmath> <cstdint> <cstring> <filesystem> <functional> <limits> <map> <memory> <mutex>
    <optional> <span> <stdexcept> <string> <string_view> <utility> <vector>)
set(ZANTROQ_TEST_HEADERS ${ZANTROQ_STANDARD_HEADERS} <fstream> <sstream> <thread> <gmock/gmock.h> <gtest/gtest.h> <nlohmann/json.hpp>)
set(ZANTROQ_QT_HEADERS ${ZANTROQ_STANDARD_HEADERS}
    <QApplication> <QBuffer> <QComboBox> <QContextMenuEvent> <QFile> <QFileInfo> <QFont> <QFontMetricsF> <QImage> <QKeyEvent> <QLabel>
    <QLineEdit> <QMenu> <QMouseEvent> <QPainter> <QPainterPath> <QPalette> <QPdfWriter> <QPointer> <QScrollBar> <QSignalBlocker>
    <QString> <QSvgGenerator> <QSvgRenderer> <QTemporaryDir> <QTimer> <QToolButton> <QWheelEvent> <QWidget>)

# zantroq_precompile(TARGET HEADER...): precompiles the headers for the target.
function(zantroq_precompile target)
    if(ZANTROQ_PCH)
        target_precompile_headers(${target} PRIVATE ${ARGN})
    endif()
endfunction()
