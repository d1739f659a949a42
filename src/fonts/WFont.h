#pragma once

#include <LumakitQmlExport.h>

#include <QFont>
#include <QList>
#include <QObject>
#include <QString>

/// A font built from a token, which fixes its pixel size, weight and underline.
class LUMAKITQML_EXPORT WFont : public QFont
{
    Q_GADGET

public:
    enum Token : int {
        Default,
        Title,
        Header,
        SubheaderPrimary,
        SubheaderSecondary,
        BodyPrimary,
        BodySecondary,
        BodyTertiary,
        BannerPrimary,
        BannerSecondary,
        BannerTertiary,
        HighlightPrimary,
        HighlightSecondary,
        HighlightTertiary,
        HyperlinkPrimary,
        HyperlinkSecondary,
        TagLabelPrimary,
        TagLabelSecondary,
        CodeBlocks,
        RadioButtonLabelSecondary,
        Display,
    };
    Q_ENUM(Token)

    WFont() = default;
    WFont(const QFont &font);
    /// Size in points, weight on Qt's scale of 1 to 1000.
    WFont(const QString &family, int pointSize, int weight);
    /// The size (points) is set only when positive, the weight (1 to 1000) only when not negative.
    WFont(const QList<QString> &families, int pointSize, int weight);
    /// The font of a token, its size multiplied by the application's font scale factor. With the flag it names
    /// fallback families for African, Myanmar and Indic scripts. An unknown token logs a warning and is 16 px.
    WFont(Token token, bool withFallbackFamilies);
};
