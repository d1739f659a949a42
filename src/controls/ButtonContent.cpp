#include "ButtonContent.h"

#include "IconImage.h"
#include "LKColorData.h"
#include "LKIconButtonData.h"
#include "LKPillButtonData.h"

#include <QQmlEngine>

#include <QtQuick/private/qquicktext_p.h>
#include <QtQuickTemplates2/private/qquickcontrol_p.h>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QSize iconSize(QObject *data)
{
    if (const auto *button = qobject_cast<ILKButtonData *>(data))
        return button->iconSize();
    if (const auto *button = qobject_cast<LKIconButtonData *>(data))
        return button->iconSize();
    return {};
}

QColor contentColor(const LKButtonColors *data)
{
    const LKColorData *color = data ? data->textColorData() : nullptr;
    return color ? color->color() : QColor(Qt::transparent);
}

// An arrow points the other way in a mirrored layout.
bool isDirectional(QStringView icon)
{
    return icon.contains(u"-left") || icon.contains(u"-right");
}

// What QML makes gets its context and its completion from there.
template<typename Item> Item *make(QQuickItem *parent)
{
    auto *item = new Item(parent);
    QQmlEngine::setContextForObject(item, qmlContext(parent));
    return item;
}

} // namespace

ButtonContent::ButtonContent(QQuickItem *parent)
    : QQuickItem(parent)
{
}

ButtonContent::~ButtonContent() = default;

QObject *ButtonContent::buttonData() const
{
    return m_data;
}

void ButtonContent::setButtonData(QObject *buttonData)
{
    if (m_data == buttonData)
        return;
    // Without a meta-object of its own the common base is no target of qobject_cast.
    m_data = dynamic_cast<LKButtonColors *>(buttonData);
    if (m_data) {
        if (LKColorData *color = m_data->textColorData())
            connect(color, &LKColorData::colorChanged, this, &ButtonContent::refreshColor);
        if (auto *data = qobject_cast<ILKButtonData *>(buttonData))
            connect(data, &ILKButtonData::iconSizeChanged, this, &ButtonContent::refreshAll);
        if (auto *pillData = qobject_cast<LKPillButtonData *>(buttonData)) {
            connect(pillData, &LKPillButtonData::fontChanged, this, &ButtonContent::refreshAll);
            connect(pillData, &LKPillButtonData::spacingChanged, this, &ButtonContent::refreshAll);
        }
        if (auto *iconData = qobject_cast<LKIconButtonData *>(buttonData))
            connect(iconData, &LKIconButtonData::iconSizeChanged, this, &ButtonContent::refreshAll);
        refreshAll();
    }
    Q_EMIT buttonDataChanged();
}

QString ButtonContent::text() const
{
    return m_text;
}

void ButtonContent::setText(const QString &text)
{
    if (text == m_text)
        return;
    m_text = text;
    refreshText();
    updateMetrics();
    Q_EMIT textChanged();
}

QString ButtonContent::leftIcon() const
{
    return m_iconNames[Left];
}

void ButtonContent::setLeftIcon(const QString &name)
{
    if (name == leftIcon())
        return;
    setIcon(Left, name);
    Q_EMIT leftIconChanged();
}

QString ButtonContent::rightIcon() const
{
    return m_iconNames[Right];
}

void ButtonContent::setRightIcon(const QString &name)
{
    if (name == rightIcon())
        return;
    setIcon(Right, name);
    Q_EMIT rightIconChanged();
}

void ButtonContent::componentComplete()
{
    QQuickItem::componentComplete();
    if (auto *control = qobject_cast<QQuickControl *>(parentItem()))
        connect(control, &QQuickControl::mirroredChanged, this, &QQuickItem::polish);
    refreshAll();
}

void ButtonContent::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        polish();
}

// Icons and text from left to right, or the other way round, in the middle; the text gets what is left.
void ButtonContent::updatePolish()
{
    for (const Side side : {Left, Right}) {
        if (m_icons[side])
            m_icons[side]->setMirror(isMirrored() && isDirectional(m_iconNames[side]));
    }
    const double free = std::max(0.0, width() - implicitWidth());
    const double missing = std::max(0.0, implicitWidth() - width());
    double x = std::floor(free / 2);
    const auto place = [&](QQuickItem *item, double itemWidth) {
        if (!item)
            return;
        item->setX(isMirrored() ? std::floor(width() - x - itemWidth) : x);
        item->setY(std::floor((height() - item->height()) / 2));
        x += itemWidth + m_spacing;
    };
    place(m_icons[Left], m_icons[Left] ? m_icons[Left]->width() : 0);
    if (m_label) {
        m_label->setWidth(std::max(0.0, std::ceil(m_label->implicitWidth()) - missing));
        m_label->setHeight(m_label->implicitHeight());
        place(m_label, m_label->width());
    }
    place(m_icons[Right], m_icons[Right] ? m_icons[Right]->width() : 0);
}

void ButtonContent::setIcon(Side side, const QString &name)
{
    m_iconNames[side] = name;
    refreshIcon(side);
    updateMetrics();
}

void ButtonContent::refreshIcon(Side side)
{
    if (!isComponentComplete() || !m_data)
        return;
    QQuickImage *&icon = m_icons[side];
    const QString &name = m_iconNames[side];
    const QSize size = iconSize(m_data);
    if (name.isEmpty() || size.isEmpty()) {
        delete icon;
        icon = nullptr;
        return;
    }
    if (!icon)
        icon = make<IconImage>(this);
    icon->setSize(size);
    icon->setSourceSize(size);
    icon->setSource(IconImage::iconUrl(contentColor(m_data), name));
}

void ButtonContent::refreshText()
{
    if (!isComponentComplete() || !m_data)
        return;
    if (m_text.isEmpty()) {
        delete m_label;
        m_label = nullptr;
        return;
    }
    if (!m_label) {
        m_label = make<QQuickText>(this);
        m_label->setTextFormat(QQuickText::PlainText);
        m_label->setElideMode(QQuickText::ElideRight);
        m_label->setHAlign(QQuickText::AlignLeft);
    }
    if (const auto *data = qobject_cast<LKPillButtonData *>(m_data))
        m_label->setFont(data->font());
    m_label->setColor(contentColor(m_data));
    m_label->setText(m_text);
}

// Sizes do not depend on the colour.
void ButtonContent::refreshColor()
{
    refreshIcon(Left);
    refreshIcon(Right);
    if (m_label)
        m_label->setColor(contentColor(m_data));
}

void ButtonContent::refreshAll()
{
    refreshIcon(Left);
    refreshIcon(Right);
    refreshText();
    updateMetrics();
}

void ButtonContent::updateMetrics()
{
    const auto *pill = qobject_cast<LKPillButtonData *>(m_data);
    m_spacing = pill ? pill->spacing() : 0;
    double width = 0;
    double height = 0;
    const auto add = [&](double itemWidth, double itemHeight) {
        width += itemWidth + (width > 0 ? m_spacing : 0);
        height = std::max(height, itemHeight);
    };
    for (const QQuickImage *icon : m_icons) {
        if (icon)
            add(icon->width(), icon->height());
    }
    if (m_label)
        add(std::ceil(m_label->implicitWidth()), m_label->implicitHeight());
    setImplicitSize(width, height);
    polish();
}

bool ButtonContent::isMirrored() const
{
    const auto *control = qobject_cast<QQuickControl *>(parentItem());
    return control && control->isMirrored();
}
