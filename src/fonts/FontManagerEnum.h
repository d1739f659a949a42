#pragma once

#include <LumakitQmlExport.h>

#include <QObject>

/// Carries the enums of font scaling into QML.
class LUMAKITQML_EXPORT FontManagerEnum : public QObject
{
    Q_OBJECT

public:
    enum FontScalingFactor : int {
        Small = -1,
        Regular = 0,
        Medium = 1,
        Large = 2,
    };
    Q_ENUM(FontScalingFactor)

    /// The kinds of view whose text size is chosen apart.
    enum FontType : int {
        Default = 0,
        MessagingView = 1,
        MeetingView = 2,
    };
    Q_ENUM(FontType)

    FontManagerEnum() = default;
};
