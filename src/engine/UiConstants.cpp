#include "UiConstants.h"

UiConstants::UiConstants(QObject *parent)
    : QObject(parent)
{
}

UiConstants::~UiConstants() = default;

int UiConstants::scrollbarSize() const
{
    return 16;
}
