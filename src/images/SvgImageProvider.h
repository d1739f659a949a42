#pragma once

#include <LumakitQmlExport.h>

#include <QQuickImageProvider>

#include <memory>
#include <mutex>

class WSvgRenderer;

/// Serves the host's icons to QML in any colour: "image://svg/<colour>/<icon name>".
///
/// The colour is any form that QColor reads; an item must set a source size. Requests are served one at a time,
/// from any thread.
class LUMAKITQML_EXPORT SvgImageProvider : public QQuickImageProvider
{
public:
    SvgImageProvider();
    ~SvgImageProvider() override;

    /// A pixmap of exactly the requested size (device pixels). A malformed id or an empty size logs a warning and
    /// gives a null pixmap.
    QPixmap requestPixmap(const QString &id, QSize *size, const QSize &requestedSize) override;

private:
    struct DeleteLater
    {
        void operator()(WSvgRenderer *renderer) const;
    };

    std::mutex m_mutex;
    std::unique_ptr<WSvgRenderer, DeleteLater> m_renderer;
};
