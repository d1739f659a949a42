// Writes the samples to PNG files: render_samples [--themes] FOLDER [NAME...]; in every theme, and, without --themes,
// mirrored and with the largest font.
#include "SampleRenderer.h"

#include <LKQmlRegister.h>
#include <TestApplication.h>

#include <QDir>
#include <QTextStream>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    SampleRenderer::useSoftware();
    TestApplication::isolateSettings();
    TestApplication application(argc, argv);
    LKQmlRegister::registerLKQmlDataTypes();
    LKQmlRegister::registerLKQmlComponents();

    QStringList names = QCoreApplication::arguments().mid(1);
    const bool themesOnly = names.removeAll(u"--themes"_s) > 0;
    if (names.isEmpty())
        return 2;
    const QString folder = names.takeFirst();
    QDir().mkpath(folder);
    if (names.isEmpty())
        names = SampleRenderer::names();

    QMap<QString, SampleRenderer::Look> looks = {
        {u"default"_s, {}},
        {u"dark"_s, {u"dark"_s}},
        {u"highcontrast"_s, {u"highcontrast"_s}},
    };
    if (!themesOnly) {
        looks.insert(u"mirrored"_s, {u"default"_s, 1, true});
        looks.insert(u"large"_s, {u"default"_s, 1.5F});
    }
    for (const QString &name : std::as_const(names)) {
        for (auto look = looks.begin(); look != looks.end(); ++look) {
            QString error;
            const QString path = folder + u"/%1-%2.png"_s.arg(name, look.key());
            if (!SampleRenderer::render(name, *look, &error).save(path)) {
                QTextStream(stderr) << name << ": " << error << Qt::endl;
                return 1;
            }
        }
    }
    return 0;
}
