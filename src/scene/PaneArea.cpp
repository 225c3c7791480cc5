#include "scene/PaneArea.h"

#include <stdexcept>

namespace zantroq {

CPaneMarker& CPaneArea::PaneMarkers(const std::string& name)
{
    if (name != "x")
        throw std::invalid_argument("marker " + name);
    return m_marker;
}

} // namespace zantroq
