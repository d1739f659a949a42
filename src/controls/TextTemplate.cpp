#include "TextTemplate.h"

TextTemplate::TextTemplate(QQuickItem *parent)
    : ThemedText(parent)
{
}

TextTemplate::~TextTemplate() = default;

QQuickMouseArea *TextTemplate::textMouseArea() const
{
    return m_textMouseArea;
}

void TextTemplate::setTextMouseArea(QQuickMouseArea *area)
{
    if (area == m_textMouseArea)
        return;
    if (m_textMouseArea)
        m_textMouseArea->disconnect(this);
    m_textMouseArea = area;
    if (area) {
        connect(area, &QQuickMouseArea::hoveredChanged, this, [this] { updateState(); });
        connect(area, &QQuickMouseArea::pressedChanged, this, [this] { updateState(); });
        connect(area, &QObject::destroyed, this, [this] { updateState(); });
    }
    updateState();
    Q_EMIT textMouseAreaChanged();
}

void TextTemplate::setToolTipText(const QString &text)
{
    if (changeToolTip(text))
        Q_EMIT toolTipTextChanged();
}

QStyle::State TextTemplate::pointerState() const
{
    QStyle::State state;
    state.setFlag(QStyle::State_Sunken, m_textMouseArea && m_textMouseArea->isPressed());
    state.setFlag(QStyle::State_MouseOver, m_textMouseArea && m_textMouseArea->hovered());
    return state;
}
