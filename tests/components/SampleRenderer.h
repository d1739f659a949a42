#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

/// Draws the gallery's samples with the software back end, the same on every machine.
namespace SampleRenderer {

struct Look
{
    QString themeMode = QStringLiteral("default");
    float fontScaleFactor = 1;
    bool mirrored = false;
};

/// Call it before the application object exists.
void useSoftware();

/// The components that have a sample, sorted.
QStringList names();

/// Null, with the reason in `error`, where the sample cannot be shown.
QImage render(const QString &name, const Look &look, QString *error);

} // namespace SampleRenderer
