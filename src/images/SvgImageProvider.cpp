#include "SvgImageProvider.h"

#include "WSvgRenderer.h"

#include <QDebug>

using namespace Qt::StringLiterals;

SvgImageProvider::SvgImageProvider()
    : QQuickImageProvider(Pixmap)
    , m_renderer(new WSvgRenderer(nullptr))
{
}

SvgImageProvider::~SvgImageProvider() = default;

QPixmap SvgImageProvider::requestPixmap(const QString &id, QSize *size, const QSize &requestedSize)
{
    const QStringList parts = id.split(u'/');
    if (parts.size() != 2) {
        qWarning() << "Invalid parameter for svg. Expected 'color/svgName'";
        return {};
    }
    if (requestedSize.isEmpty()) {
        qWarning().noquote() << u"Request for SVG %1 with invalid size %2x%3."_s.arg(
            id, QString::number(requestedSize.width()), QString::number(requestedSize.height()));
        return {};
    }

    const std::lock_guard lock(m_mutex);
    if (size)
        *size = requestedSize;
    m_renderer->updateIconResource(parts[1]);
    return m_renderer->renderPixmap(requestedSize, 1.0, QColor(parts[0]));
}

void SvgImageProvider::DeleteLater::operator()(WSvgRenderer *renderer) const
{
    renderer->deleteLater();
}
