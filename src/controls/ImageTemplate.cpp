#include "ImageTemplate.h"

#include "AliasSignals.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double SpinnerSize = 24;

} // namespace

ImageTemplate::ImageTemplate(QQuickItem *parent)
    : IconImage(parent)
{
}

ImageTemplate::~ImageTemplate() = default;

bool ImageTemplate::hasSpinner() const
{
    return m_hasSpinner;
}

void ImageTemplate::setHasSpinner(bool hasSpinner)
{
    if (hasSpinner == m_hasSpinner)
        return;
    m_hasSpinner = hasSpinner;
    Q_EMIT hasSpinnerChanged();
    if (hasSpinner)
        connect(this, &QQuickImage::statusChanged, this, &ImageTemplate::updateSpinner);
    else
        disconnect(this, &QQuickImage::statusChanged, this, &ImageTemplate::updateSpinner);
    updateSpinner();
}

bool ImageTemplate::isSpinnerVisible() const
{
    return m_isSpinnerVisible;
}

QQuickItem *ImageTemplate::spinner() const
{
    return m_isSpinnerVisible ? m_spinner : nullptr;
}

int ImageTemplate::sourceSizeStep() const
{
    return m_sourceSizeStep;
}

void ImageTemplate::setSourceSizeStep(int step)
{
    if (step == m_sourceSizeStep)
        return;
    m_sourceSizeStep = step;
    connect(this, &QQuickImage::fillModeChanged, this, &ImageTemplate::updateSourceSize, Qt::UniqueConnection);
    updateSourceSize();
    Q_EMIT sourceSizeStepChanged();
}

QString ImageTemplate::svgName() const
{
    return m_svgName;
}

void ImageTemplate::setSvgName(const QString &name)
{
    if (name == m_svgName)
        return;
    m_svgName = name;
    updateSource();
    Q_EMIT svgNameChanged();
}

bool ImageTemplate::isIcon() const
{
    return m_isIcon;
}

void ImageTemplate::setIcon(bool isIcon)
{
    if (isIcon == m_isIcon)
        return;
    m_isIcon = isIcon;
    updateSource();
    Q_EMIT isIconChanged();
}

StateColor *ImageTemplate::iconColors()
{
    return &icon().color;
}

QString ImageTemplate::iconColorName()
{
    return colorName(icon().color.color());
}

void ImageTemplate::setSource(const QUrl &url)
{
    m_ownsSource = true;
    QQuickImage::setSource(url);
}

void ImageTemplate::setSourceSize(const QSize &size)
{
    m_ownsSourceSize = true;
    QQuickImage::setSourceSize(size);
}

void ImageTemplate::connectNotify(const QMetaMethod &signal)
{
    QQuickImage::connectNotify(signal);
    connectAlias(this, signal);
}

// Before the image loads: once is enough.
void ImageTemplate::componentComplete()
{
    m_isCompleting = true;
    updateSourceSize();
    updateSource();
    QQuickImage::componentComplete();
}

void ImageTemplate::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickImage::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() == oldGeometry.size())
        return;
    updateSourceSize();
    if (m_isIcon)
        updateSource();
    placeSpinner();
}

void ImageTemplate::itemChange(ItemChange change, const ItemChangeData &data)
{
    IconImage::itemChange(change, data);
    if (m_sourceSizeStep > 0 && (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange))
        updateSourceSize();
}

ImageTemplate::Icon &ImageTemplate::icon()
{
    if (!m_icon)
        m_icon = std::make_unique<Icon>(static_cast<ControlState::User *>(this));
    return *m_icon;
}

void ImageTemplate::showColors()
{
    updateSource();
    Q_EMIT iconColorNameChanged();
}

// None without a colour or less than a pixel: there is nothing to draw.
QUrl ImageTemplate::svgUrl()
{
    if (m_svgName.isEmpty())
        return {};
    if (!m_isIcon)
        return QUrl(u"qrc:/Resources/%1.svg"_s.arg(m_svgName));
    if (width() < 1 || height() < 1)
        return {};
    return iconUrl(icon().color.color(), m_svgName);
}

// Whether everything that QML gives is here.
bool ImageTemplate::isReady() const
{
    return m_isCompleting || isComponentComplete();
}

void ImageTemplate::updateSource()
{
    if (isReady() && !m_ownsSource && !(m_svgName.isEmpty() && source().isEmpty()))
        QQuickImage::setSource(svgUrl());
}

void ImageTemplate::updateSourceSize()
{
    if (!isReady() || m_ownsSourceSize)
        return;
    if (m_sourceSizeStep > 0) {
        const double ratio = window() ? window()->effectiveDevicePixelRatio() : qGuiApp->devicePixelRatio();
        const double longest = std::max(width(), height()) * ratio;
        const double side = std::ceil(longest / m_sourceSizeStep) * m_sourceSizeStep;
        // A provider may leave free what its picture does not fill: where the item does too, or, cropped, in a square.
        const bool isCropped = fillMode() == PreserveAspectCrop;
        const QSizeF wanted = size().scaled(side, side, isCropped ? Qt::IgnoreAspectRatio : Qt::KeepAspectRatio);
        QQuickImage::setSourceSize(wanted.toSize());
    } else if (m_isIcon) {
        // Never empty, also not while only one of the sides has changed yet: the provider would complain.
        QQuickImage::setSourceSize(size().toSize().expandedTo({1, 1}));
    } else if (!m_svgName.isEmpty()) {
        QQuickImage::setSourceSize(size().toSize());
    }
}

void ImageTemplate::updateSpinner()
{
    const bool isVisible = m_hasSpinner && status() == Loading;
    if (isVisible == m_isSpinnerVisible)
        return;
    m_isSpinnerVisible = isVisible;
    if (isVisible) {
        QQmlComponent component(qmlEngine(this), QUrl(u"qrc:/Qml/WSvgSpinner.qml"_s));
        m_spinner = qobject_cast<QQuickItem *>(component.createWithInitialProperties(
            {{u"parent"_s, QVariant::fromValue<QQuickItem *>(this)}}, qmlContext(this)));
        if (m_spinner)
            m_spinner->setParent(this);
        placeSpinner();
    } else if (m_spinner) {
        m_spinner->deleteLater();
    }
    Q_EMIT isSpinnerVisibleChanged();
}

// In the middle, no larger than the image, unless that has no size before it is loaded.
void ImageTemplate::placeSpinner()
{
    if (!m_spinner)
        return;
    const double side = size().isEmpty() ? SpinnerSize : std::min({SpinnerSize, width(), height()});
    m_spinner->setSize({side, side});
    m_spinner->setPosition({(width() - side) / 2, (height() - side) / 2});
}
