#pragma once

#include <QtQuick/private/qquickrectangle_p.h>

/// The background that a template paints. What somebody puts in its place looks after itself.
class Face : public QQuickRectangle
{
    Q_OBJECT

public:
    using QQuickRectangle::QQuickRectangle;
};
