#include "WFontManager.h"

#include "WApplication.h"
#include "WScaledFonts.h"

#include <QDebug>

WFontManager::WFontManager(QObject *parent)
    : QObject(parent)
{
}

WFontManager::~WFontManager() = default;

WFontManager *WFontManager::get()
{
    if (const auto *application = qobject_cast<WApplication *>(QCoreApplication::instance()))
        return application->getWFontManager();
    qWarning() << "Unable to find WApplication";
    return nullptr;
}

WScaledFonts *WFontManager::getFont(FontManagerEnum::FontType type)
{
    QPointer<WScaledFonts> &fonts = m_fonts[type];
    if (!fonts)
        fonts = new WScaledFonts(this);
    return fonts;
}

void WFontManager::setScalingFactor(FontManagerEnum::FontType view, FontManagerEnum::FontScalingFactor factor)
{
    getFont(view)->setScalingFactor(factor);
}
