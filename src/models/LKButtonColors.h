#pragma once

#include "WObject.h"

#include <QPointer>
#include <QString>

#include <array>

class LKColorData;
class LKEventData;

/// What all button data share, without a meta-object of its own: the colours of background, border and text, which
/// follow a theme and a state.
class LUMAKITQML_EXPORT LKButtonColors : public WObject
{
public:
    ~LKButtonColors() override;

    /// A free name for the theme. A change of it looks all colour sets up again.
    QString themeType() const;
    void setThemeType(const QString &themeType);

    /// The colours are children of the button data. One that somebody has deleted is null and logs a warning here; the
    /// others go on without it.
    LKColorData *backgroundColorData() const;
    LKColorData *borderColorData() const;
    LKColorData *textColorData() const;

    /// The state of the button; not owned. Without it all colours are transparent.
    LKEventData *eventData() const;
    void setEventData(LKEventData *eventData);

    /// There is a border; without a border colour none is seen.
    virtual bool border() const = 0;

protected:
    explicit LKButtonColors(QObject *parent);

    virtual void notifyThemeType() = 0;
    virtual void notifyEventData() = 0;
    /// Called for other event data, after a change of a flag, and when the event data are gone.
    virtual void updateState();

    void setTokens(const QString &background, const QString &border, const QString &text);
    void setActiveTextToken(const QString &activeToken);
    void lookUpColorSets();

private:
    enum Part { Background, Border, Text, PartCount };

    LKColorData *colorData(Part part, const char *warning) const;

    QString m_themeType;
    std::array<QPointer<LKColorData>, PartCount> m_colors;
    LKEventData *m_eventData = nullptr; // tells when it goes
    friend class LKEventData;
};
