#pragma once

#include "WObject.h"

#include <QMap>
#include <QString>
#include <QVariant>

/// The native side of a view, declared in its QML file as a direct child of the root item, at most one a file.
class LUMAKITQML_EXPORT WQmlController : public WObject
{
    Q_OBJECT

public:
    explicit WQmlController(QObject *parent = nullptr);
    ~WQmlController() override;

    /// Receives the caller's initial properties, once a load, when the whole QML tree exists and before the view is
    /// reported as ready. Does nothing here.
    Q_INVOKABLE virtual void init(const QMap<QString, QVariant> &initialProperties);
};
