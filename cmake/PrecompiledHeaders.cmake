# Most of the time of a build goes into reading the same headers of the standard library, Qt and GoogleTest again for each file; they
# are read once for each library and once for all test programs. None of our own headers is among them. Every file still includes what
# it uses; builds without precompiled headers see to that. With ccache they stay off, since it keeps more without them;
# -DZANTROQ_CCACHE=OFF chooses them over it.
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

# zantroq_precompile(TARGET HEADER...): the headers are read once for the target.
function(zantroq_precompile target)
    if(ZANTROQ_PCH)
        target_precompile_headers(${target} PRIVATE ${ARGN})
    endif()
endfunction()
