#include "vexplay/FrameSink.h"

#include <utility>

namespace vexplay {

bool FrameSink::Put(QImage image)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_image = std::move(image);
    m_fresh = true;
    if (m_noticed)
        return false;
    m_noticed = true;
    return true;
}

QImage FrameSink::Take()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_noticed = false;
    if (!m_fresh)
        return {};
    m_fresh = false;
    return std::exchange(m_image, QImage());
}

void FrameSink::SetArea(QSize area)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_area = area;
}

QSize FrameSink::Area() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_area;
}

} // namespace vexplay
