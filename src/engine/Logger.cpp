#include "Logger.h"

#include <QDebug>

namespace {

constexpr auto Prefix = "qml: ";

// In the default category, without the library's own source position.
QMessageLogger logger()
{
    return {nullptr, 0, nullptr};
}

} // namespace

Logger::Logger(QObject *parent)
    : QObject(parent)
{
}

Logger::~Logger() = default;

void Logger::info(const QString &text)
{
    logger().info() << Prefix << text;
}

void Logger::debug(const QString &text)
{
    logger().debug() << Prefix << text;
}

void Logger::error(const QString &text)
{
    logger().critical() << Prefix << text;
}
