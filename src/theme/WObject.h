#pragma once

#include <LumakitQmlExport.h>

#include <QObject>

/// The common base of the library's controllers and button data.
class LUMAKITQML_EXPORT WObject : public QObject
{
public:
    explicit WObject(QObject *parent = nullptr);
    ~WObject() override;
};
