#include "WQmlController.h"

WQmlController::WQmlController(QObject *parent)
    : WObject(parent)
{
}

WQmlController::~WQmlController() = default;

void WQmlController::init(const QMap<QString, QVariant> &) { }
