#include "WObject.h"

WObject::WObject(QObject *parent)
    : QObject(parent)
{
}

WObject::~WObject() = default;
