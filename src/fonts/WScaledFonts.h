#pragma once

#include "FontManagerEnum.h"
#include "WFont.h"

#include <QFont>
#include <QObject>

#include <array>

/// Ready-made fonts by role, whose sizes are switched as a block. H1 to H6, the body, highlight and hyperlink roles
/// and code blocks follow the scaling factor; the others keep their size.
class LUMAKITQML_EXPORT WScaledFonts : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QFont Display READ display NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont H1 READ h1 NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont BannerTertiary READ bannerTertiary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont BannerPrimary READ bannerPrimary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont BannerSecondary READ bannerSecondary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont H2 READ h2 NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont Title READ title NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont HeaderPrimary READ headerPrimary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont HighlightPrimary READ highlightPrimary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont H3 READ h3 NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont SubheaderPrimary READ subheaderPrimary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont BodyPrimary READ bodyPrimary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont HyperlinkPrimary READ hyperlinkPrimary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont SubheaderSecondary READ subheaderSecondary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont HighlightSecondary READ highlightSecondary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont HeaderSecondary READ headerSecondary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont BodySecondary READ bodySecondary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont HyperlinkSecondary READ hyperlinkSecondary NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont HighlightCompact READ highlightCompact NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont BodyCompact READ bodyCompact NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont LabelCompact READ labelCompact NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont CodeBlocks READ codeBlocks NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont Default READ defaultFont NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont H4 READ h4 NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont H5 READ h5 NOTIFY fontTokenChanged)
    Q_PROPERTY(QFont H6 READ h6 NOTIFY fontTokenChanged)

public:
    /// Starts at the Regular sizes.
    explicit WScaledFonts(QObject *parent = nullptr);
    ~WScaledFonts() override;

    QFont display() const { return m_fonts[DisplayRole]; }
    QFont h1() const { return m_fonts[H1Role]; }
    QFont bannerTertiary() const { return m_fonts[BannerTertiaryRole]; }
    QFont bannerPrimary() const { return m_fonts[BannerPrimaryRole]; }
    QFont bannerSecondary() const { return m_fonts[BannerSecondaryRole]; }
    QFont h2() const { return m_fonts[H2Role]; }
    QFont title() const { return m_fonts[TitleRole]; }
    QFont headerPrimary() const { return m_fonts[HeaderPrimaryRole]; }
    QFont highlightPrimary() const { return m_fonts[HighlightPrimaryRole]; }
    QFont h3() const { return m_fonts[H3Role]; }
    QFont subheaderPrimary() const { return m_fonts[SubheaderPrimaryRole]; }
    QFont bodyPrimary() const { return m_fonts[BodyPrimaryRole]; }
    QFont hyperlinkPrimary() const { return m_fonts[HyperlinkPrimaryRole]; }
    QFont subheaderSecondary() const { return m_fonts[SubheaderSecondaryRole]; }
    QFont highlightSecondary() const { return m_fonts[HighlightSecondaryRole]; }
    QFont headerSecondary() const { return m_fonts[HeaderSecondaryRole]; }
    QFont bodySecondary() const { return m_fonts[BodySecondaryRole]; }
    QFont hyperlinkSecondary() const { return m_fonts[HyperlinkSecondaryRole]; }
    QFont highlightCompact() const { return m_fonts[HighlightCompactRole]; }
    QFont bodyCompact() const { return m_fonts[BodyCompactRole]; }
    QFont labelCompact() const { return m_fonts[LabelCompactRole]; }
    QFont codeBlocks() const { return m_fonts[CodeBlocksRole]; }
    QFont defaultFont() const { return m_fonts[DefaultRole]; }
    QFont h4() const { return m_fonts[H4Role]; }
    QFont h5() const { return m_fonts[H5Role]; }
    QFont h6() const { return m_fonts[H6Role]; }

    /// The font of a token's role. RadioButtonLabelSecondary and unknown tokens get Default.
    Q_INVOKABLE QFont getFont(WFont::Token token);

    /// Small, Medium and Large set fixed pixel sizes, Regular rebuilds every font from its token with the application's
    /// current font scale factor, any other value changes nothing. Emits fontTokenChanged() in every case.
    void setScalingFactor(FontManagerEnum::FontScalingFactor factor);

Q_SIGNALS:
    void fontTokenChanged();

private:
    enum Role {
        DisplayRole,
        H1Role,
        BannerTertiaryRole,
        BannerPrimaryRole,
        BannerSecondaryRole,
        H2Role,
        TitleRole,
        HeaderPrimaryRole,
        HighlightPrimaryRole,
        H3Role,
        SubheaderPrimaryRole,
        BodyPrimaryRole,
        HyperlinkPrimaryRole,
        SubheaderSecondaryRole,
        HighlightSecondaryRole,
        HeaderSecondaryRole,
        BodySecondaryRole,
        HyperlinkSecondaryRole,
        HighlightCompactRole,
        BodyCompactRole,
        LabelCompactRole,
        CodeBlocksRole,
        DefaultRole,
        H4Role,
        H5Role,
        H6Role,
        RoleCount
    };

    struct Source;
    struct ScaledSizes;

    void initializeTokens();

    std::array<QFont, RoleCount> m_fonts;
};
