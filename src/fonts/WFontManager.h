#pragma once

#include "FontManagerEnum.h"

#include <QObject>
#include <QPointer>

#include <map>

class WScaledFonts;

/// Owns one set of scaled fonts a kind of view.
class LUMAKITQML_EXPORT WFontManager : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("WScaledFonts.h")

public:
    explicit WFontManager(QObject *parent = nullptr);
    ~WFontManager() override;

    /// The application's manager. Without a WApplication logs a warning and gives null.
    static WFontManager *get();

    /// The fonts of a kind of view, created on the first request and owned by the manager.
    Q_INVOKABLE WScaledFonts *getFont(FontManagerEnum::FontType type);

public Q_SLOTS:
    /// Switches the sizes of a kind of view; its fonts emit fontTokenChanged().
    void setScalingFactor(FontManagerEnum::FontType view, FontManagerEnum::FontScalingFactor factor);

private:
    std::map<FontManagerEnum::FontType, QPointer<WScaledFonts>> m_fonts;
};
