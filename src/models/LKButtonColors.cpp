#include "LKButtonColors.h"

#include "LKColorData.h"
#include "LKEventData.h"

#include <QDebug>

LKButtonColors::LKButtonColors(QObject *parent)
    : WObject(parent)
{
    for (auto &color : m_colors)
        color = new LKColorData(this);
}

LKButtonColors::~LKButtonColors()
{
    if (m_eventData)
        m_eventData->m_users.removeOne(this);
}

QString LKButtonColors::themeType() const
{
    return m_themeType;
}

void LKButtonColors::setThemeType(const QString &themeType)
{
    if (themeType == m_themeType)
        return;
    m_themeType = themeType;
    notifyThemeType();
    lookUpColorSets();
}

LKColorData *LKButtonColors::backgroundColorData() const
{
    return colorData(Background, "Background color data was not created.");
}

LKColorData *LKButtonColors::borderColorData() const
{
    return colorData(Border, "Border color data was not created.");
}

LKColorData *LKButtonColors::textColorData() const
{
    return colorData(Text, "Text color data was not created.");
}

LKEventData *LKButtonColors::eventData() const
{
    return m_eventData;
}

void LKButtonColors::setEventData(LKEventData *eventData)
{
    if (eventData == m_eventData)
        return;
    if (m_eventData)
        m_eventData->m_users.removeOne(this);
    m_eventData = eventData;
    if (m_eventData)
        m_eventData->m_users.append(this);
    notifyEventData();
    updateState();
}

void LKButtonColors::updateState()
{
    for (const auto &color : m_colors) {
        if (color)
            color->setEventData(m_eventData);
    }
}

void LKButtonColors::setTokens(const QString &background, const QString &border, const QString &text)
{
    if (m_colors[Background])
        m_colors[Background]->setToken(background);
    if (m_colors[Text])
        m_colors[Text]->setToken(text);
    if (m_colors[Border])
        m_colors[Border]->setToken(border);
}

void LKButtonColors::setActiveTextToken(const QString &activeToken)
{
    if (m_colors[Text])
        m_colors[Text]->setActiveToken(activeToken);
}

void LKButtonColors::lookUpColorSets()
{
    for (const auto &color : m_colors) {
        if (color)
            color->onColorDataChanged();
    }
}

LKColorData *LKButtonColors::colorData(Part part, const char *warning) const
{
    if (!m_colors[part])
        qWarning() << warning;
    return m_colors[part];
}
