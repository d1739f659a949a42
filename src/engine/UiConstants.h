#pragma once

#include <LumakitQmlExport.h>

#include <QObject>
#include <qqmlintegration.h>

/// Sizes that screens share, in pixels. QML knows it as the singleton `UiConstants`.
class LUMAKITQML_EXPORT UiConstants : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// The thickness of a scroll bar.
    Q_PROPERTY(int ScrollbarSize READ scrollbarSize CONSTANT)

public:
    explicit UiConstants(QObject *parent = nullptr);
    ~UiConstants() override;

    int scrollbarSize() const;
};
