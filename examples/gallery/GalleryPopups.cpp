#include "GalleryPopups.h"

#include <WPopupQuickView.h>
#include <WQmlEngine.h>
#include <WQmlPopupController.h>

#include <QGuiApplication>
#include <QMetaEnum>

#include <utility>

using namespace Qt::StringLiterals;

GalleryPopups::~GalleryPopups()
{
    delete m_view;
}

void GalleryPopups::show(Kind kind, QQuickItem *opener, Qt::ArrowType arrow)
{
    const bool isOpen = m_view && m_kind == kind && m_opener == opener;
    m_arrow = arrow;
    if (!isOpen) {
        hide();
        m_kind = kind;
        m_opener = opener;
        open();
    }
    place();
}

void GalleryPopups::activate()
{
    if (m_view)
        m_view->requestActivate();
}

void GalleryPopups::hide()
{
    if (!m_view)
        return;
    // It closes when it is no longer active. Closed while it is active it would leave the application without an active
    // window on X11.
    if (m_view->isActive() && m_opener && m_opener->window())
        m_opener->window()->requestActivate();
    else
        m_view->close();
}

void GalleryPopups::choose(const QString &text)
{
    Q_EMIT chosen(text);
    hide();
}

WPopupQuickView *GalleryPopups::view() const
{
    return m_view;
}

void GalleryPopups::open()
{
    const QString name = QString::fromLatin1(QMetaEnum::fromType<Kind>().valueToKey(m_kind));
    m_view = WQmlEngine::createQmlPopup(
        u"Gallery%1.qml"_s.arg(name), m_opener->window(), {},
        [this](WQmlController *controller) { m_controller = qobject_cast<WQmlPopupController *>(controller); },
        m_kind == Dialog);
    if (!m_view)
        return;
    m_view->setTitle(name);
    m_view->setupActivationItem(m_opener, u"open"_s);
    connect(m_view, &WQuickView::aboutToClose, this, [this] { m_view = nullptr; });
    connect(m_opener, &QObject::destroyed, m_view, &QWindow::close);
    // The click that opens it may be what activates the application.
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, m_view, [this] {
        if (m_view && !m_view->isVisible())
            place();
    });
    // Content that grows along the arrow's axis does not move the popup by itself.
    connect(m_view, &QWindow::widthChanged, this, &GalleryPopups::place, Qt::QueuedConnection);
    connect(m_view, &QWindow::heightChanged, this, &GalleryPopups::place, Qt::QueuedConnection);
}

void GalleryPopups::place()
{
    if (!m_view || !m_controller || !m_opener)
        return;
    // Only flips are reported: back on its first side the arrow is set from here.
    m_controller->setArrowAnchor(WQmlBalloon::arrowAnchorFromArrowType(m_arrow));
    m_view->showAtRect(QRectF(m_opener->mapToGlobal(QPointF()), m_opener->size()), m_arrow);
}
