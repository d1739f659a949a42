#include "BenchHost.h"
#include "FirstFrame.h"
#include "Measurement.h"

#include <WQmlEngine.h>
#include <WQuickView.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QQuickItem>
#include <QTextStream>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

// What a process of its own does, by its argument.
constexpr auto Host = "--host"_L1;
constexpr auto Plain = "--plain"_L1;
constexpr auto PlainWithIcons = "--plain-with-icons"_L1;

void showScene(QQuickView *view)
{
    if (!view->rootObject())
        qFatal("the window was not made");
    showFirstFrame(view);
}

void startHost(int &argc, char **argv, const std::function<void()> &report)
{
    BenchHost application(argc, argv);
    const std::unique_ptr<WQuickView> view(WQmlEngine::createQmlWindow(u"BenchStartup.qml"_s));
    showScene(view.get());
    report();
}

void startPlain(int &argc, char **argv, bool hasIcons, const std::function<void()> &report)
{
    const QApplication application(argc, argv);
    QQuickView view;
    view.setInitialProperties({{u"hasIcons"_s, hasIcons}});
    view.setSource(QUrl(u"qrc:/Qml/BenchStartupPlain.qml"_s));
    showScene(&view);
    report();
}

// A process of its own, which says what it took until its first frame.
Measurement::Sample start(QLatin1StringView role)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {role});
    Measurement::Sample sample;
    if (!process.waitForFinished(60000) || process.exitCode() != EXIT_SUCCESS)
        qFatal("the host did not start");
    QTextStream(process.readAllStandardOutput()) >> sample.wall >> sample.cpu;
    if (sample.cpu <= 0)
        qFatal("the host has said nothing");
    return sample;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 2) {
        const BenchSurroundings surroundings;
        QElapsedTimer timer;
        const double cpuStart = Measurement::processCpuNanoseconds();
        timer.start();
        const auto report = [&] {
            QTextStream(stdout) << timer.nsecsElapsed() << ' '
                                << qint64(Measurement::processCpuNanoseconds() - cpuStart) << Qt::endl;
        };
        const QLatin1StringView role(argv[1]);
        if (role == Host)
            startHost(argc, argv, report);
        else
            startPlain(argc, argv, role == PlainWithIcons, report);
        return EXIT_SUCCESS;
    }
    const QCoreApplication application(argc, argv);
    Measurement::printHead(u"From main() to first frame"_s);
    using Contender = Measurement::SampledContender;
    const Contender host{u"WApplication"_s, [] { return start(Host); }};
    Measurement::compare(u"host with 50 components"_s, host,
                         Contender{u"plain items, no icons, Qt Widgets loaded"_s, [] { return start(Plain); }}, 1.1);
    Measurement::compare(u"host with 50 components"_s, host,
                         Contender{u"plain items, Qt Widgets loaded"_s, [] { return start(PlainWithIcons); }}, 1.1);
    return EXIT_SUCCESS;
}
