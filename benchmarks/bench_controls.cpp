#include "BenchHost.h"
#include "Measurement.h"

#include <WQmlEngine.h>

#include <QDir>
#include <QElapsedTimer>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickView>
#include <QTextStream>

#ifdef Q_OS_LINUX
#include <malloc.h>
#endif

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct Pair
{
    QString subject;
    QByteArray ours;
    QByteArray peer; // with the same text, icon and size
};

const QList<Pair> &pairs()
{
    static const QList<Pair> list = {
        {u"button with text and icon"_s, "LKPillButton { text: 'Join'; leftIcon: 'video-bold' }",
         "Basic.Button { text: 'Join'; icon.source: 'qrc:/Resources/video-bold.svg' }"},
        {u"button with text"_s, "WButton { text: 'Join' }", "Basic.Button { text: 'Join' }"},
        {u"icon"_s, "WSvgIcon { width: 16; height: 16; svgName: 'video-bold' }",
         "Impl.IconImage { width: 16; height: 16; source: 'qrc:/Resources/video-bold.svg'; color: 'red' }"},
        {u"label"_s, "WLabel { text: 'Name' }", "Basic.Label { text: 'Name' }"},
        {u"text field"_s, "WTextField { text: 'Name' }", "Basic.TextField { text: 'Name' }"},
        {u"check box"_s, "WCheckBox { text: 'Name' }", "Basic.CheckBox { text: 'Name' }"},
        {u"slider"_s, "WSlider { }", "Basic.Slider { }"},
    };
    return list;
}

std::unique_ptr<QQmlComponent> compile(QQmlEngine *engine, const QByteArray &body)
{
    auto component = std::make_unique<QQmlComponent>(engine);
    component->setData("import QtQuick\nimport QtQuick.Controls.Basic as Basic\nimport QtQuick.Controls.impl as Impl\n"
                       "import LumakitQml 1.0\nimport 'qrc:/Qml'\n"
                           + body,
                       QUrl(u"qrc:/Qml/Bench.qml"_s));
    if (component->isError())
        qFatal("%s", qPrintable(component->errorString()));
    return component;
}

// Makes that many in the scene of the parent.
void create(QQmlComponent *component, QQuickItem *parent, int count)
{
    for (int i = 0; i < count; ++i) {
        QObject *object = component->createWithInitialProperties({{u"parent"_s, QVariant::fromValue(parent)}});
        if (!object)
            qFatal("%s", qPrintable(component->errorString()));
        object->setParent(parent);
    }
}

double kibibytesEach([[maybe_unused]] QQmlComponent *component, [[maybe_unused]] QQuickItem *parent)
{
#ifdef Q_OS_LINUX
    constexpr int Count = 1000;
    QQuickItem container(parent);
    const size_t before = mallinfo2().uordblks;
    create(component, &container, Count);
    return double(mallinfo2().uordblks - before) / Count / 1024;
#else
    return 0;
#endif
}

void compareCreation(QQuickView &view)
{
    constexpr int Count = 100;
    Measurement::printHead(u"Creation and destruction"_s);
    for (const Pair &pair : pairs()) {
        const auto ours = compile(view.engine(), pair.ours);
        const auto peer = compile(view.engine(), pair.peer);
        const auto run = [&view](QQmlComponent *component) {
            QQuickItem container(view.contentItem());
            create(component, &container, Count);
        };
        Measurement::compare(pair.subject, {u"LumakitQml"_s, [&] { run(ours.get()); }},
                             {u"Basic style"_s, [&] { run(peer.get()); }}, 1, Count);
        const double oursSize = kibibytesEach(ours.get(), view.contentItem());
        const double peerSize = kibibytesEach(peer.get(), view.contentItem());
        QTextStream(stdout) << u"    memory: %1 KiB against %2 KiB, %3"_s.arg(oursSize, 0, 'f', 1)
                                   .arg(peerSize, 0, 'f', 1)
                                   .arg(oursSize / std::max(peerSize, 0.1), 0, 'f', 2)
                            << Qt::endl;
    }
}

// 200 icons, twenty of each file, on a window.
class IconScene
{
public:
    // `body` has %1 for the icon's name, `colorProperty` is that of the icon.
    IconScene(QQuickView &view, const QByteArray &body, const char *colorProperty)
        : m_view(view)
        , m_colorProperty(colorProperty)
    {
        for (const char *name : Names)
            m_components.push_back(compile(view.engine(), QByteArray(body).replace("%1", name)));
    }

    void clear() { m_scene.reset(); }

    QImage show()
    {
        m_scene = std::make_unique<QQuickItem>(m_view.contentItem());
        for (const auto &component : m_components)
            create(component.get(), m_scene.get(), CountEach);
        const auto icons = m_scene->childItems();
        for (qsizetype i = 0; i < icons.size(); ++i)
            icons[i]->setPosition({double(i % 20) * 32, double(i / 20) * 32});
        return m_view.grabWindow();
    }

    QImage recolor(const QColor &color)
    {
        const auto icons = m_scene->childItems();
        for (QQuickItem *icon : icons)
            icon->setProperty(m_colorProperty, color);
        return m_view.grabWindow();
    }

private:
    static constexpr int CountEach = 20;
    static constexpr std::array Names{"video-bold",    "bell-filled", "calendar", "camera-bold", "chat",
                                      "settings-bold", "microphone",  "users",    "star-filled", "search"};

    QQuickView &m_view;
    const char *m_colorProperty;
    std::vector<std::unique_ptr<QQmlComponent>> m_components;
    std::unique_ptr<QQuickItem> m_scene;
};

// Pixels that are nothing but the colour.
qsizetype inkOf(const QImage &image, const QColor &color)
{
    qsizetype count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) == color.rgb() ? 1 : 0;
    }
    return count;
}

// The time of the GUI thread until the icons are painted, which it does itself where there is no GPU.
void compareIcons(QQuickView &view)
{
    constexpr int Count = 200;
    IconScene our(view, "WSvgIcon { svgName: '%1'; svgColor: 'red' }", "svgColor");
    IconScene their(view, "Impl.IconImage { width: 24; height: 24; source: 'qrc:/Resources/%1.svg'; color: 'red' }",
                    "color");
    const QString peer = u"IconImage"_s;
    QImage ourImage;
    QImage theirImage;
    // The same icons in the same colour, or nothing was measured.
    const auto expectInk = [&](const QColor &color) {
        const auto ourInk = double(inkOf(ourImage, color));
        const auto theirInk = double(inkOf(theirImage, color));
        if (theirInk < Count || std::abs(ourInk - theirInk) > theirInk / 10)
            qFatal("the icons are not painted: %g pixels against %g", ourInk, theirInk);
    };
    const auto clear = [&] {
        our.clear();
        their.clear();
    };

    Measurement::printHead(u"200 icons in a window, to the frame"_s);
    Measurement::compare(u"shown, files loaded before"_s, {u"WSvgIcon"_s, [&] { ourImage = our.show(); }, clear},
                         {peer, [&] { theirImage = their.show(); }, clear}, 1, Count);
    expectInk(Qt::red);

    const auto compareColors = [&](const QString &subject, const std::function<QColor(int)> &colorOf) {
        int ourRound = 0;
        int theirRound = 0;
        const auto prepare = [&](IconScene &scene) {
            return [&clear, &scene] {
                clear();
                scene.show();
            };
        };
        Measurement::compare(
            subject, {u"svgColor"_s, [&] { ourImage = our.recolor(colorOf(ourRound++)); }, prepare(our)},
            {peer, [&] { theirImage = their.recolor(colorOf(theirRound++)); }, prepare(their)}, 1, Count);
        expectInk(colorOf(ourRound - 1));
    };
    compareColors(u"recoloured"_s, [](int round) { return QColor(0, 80, round); });
    compareColors(u"recoloured, as once before"_s, [](int round) { return QColor(round % 2, 160, 0); });
    clear();
}

// What each component costs by itself: the median time to make one, and how many items and other objects it is.
void listComponents(QQmlEngine *engine)
{
    QTextStream out(stdout);
    out << Qt::endl
        << u"%1 %2 %3 %4"_s.arg(u"Component"_s, -36).arg(u"us"_s, 8).arg(u"items"_s, 6).arg(u"objects"_s, 8)
        << Qt::endl;
    for (const QString &file : QDir(u":/Qml"_s).entryList({u"*.qml"_s}, QDir::Files, QDir::Name)) {
        QQmlComponent component(engine, QUrl("qrc:/Qml/"_L1 + file));
        const std::unique_ptr<QObject> first(component.create());
        if (!first)
            continue; // a singleton, or a part of another component
        std::vector<double> times;
        for (int i = 0; i < 15; ++i) {
            QElapsedTimer timer;
            timer.start();
            const std::unique_ptr<QObject> object(component.create());
            times.push_back(double(timer.nsecsElapsed()) / 1000);
        }
        std::sort(times.begin(), times.end());
        const auto objects = first->findChildren<QObject *>();
        const auto items = std::count_if(objects.begin(), objects.end(),
                                         [](QObject *object) { return qobject_cast<QQuickItem *>(object); });
        out << u"%1 %2 %3 %4"_s.arg(file.chopped(4), -36)
                   .arg(times[times.size() / 2], 8, 'f', 1)
                   .arg(items + 1, 6)
                   .arg(objects.size() - items, 8)
            << Qt::endl;
    }
}

// The time of the GUI thread until 1000 buttons that are shown have taken over other colours; painting is not counted.
void compareThemeSwitch(QQuickView &view, WApplication &application)
{
    constexpr int Count = 1000;
    std::unique_ptr<QQuickItem> scene;
    // One kind of button at a time: the other is not to take part in the change.
    const auto show = [&](const QByteArray &body) {
        scene = std::make_unique<QQuickItem>(view.contentItem());
        create(compile(view.engine(), body).get(), scene.get(), Count);
        const auto buttons = scene->childItems();
        for (qsizetype i = 0; i < buttons.size(); ++i)
            buttons[i]->setPosition({double(i % 10) * 80, double(i / 10) * 6});
        view.grabWindow();
        QCoreApplication::processEvents();
    };
    const QStringList modes = {u"dark"_s, u"default"_s};
    int ourRound = 0;
    int peerRound = 0;
    Measurement::printHead(u"Theme switch"_s);
    Measurement::compare(u"1000 buttons"_s,
                         {u"setThemeMode"_s,
                          [&] {
                              application.setThemeMode(modes[ourRound++ % 2]);
                              QCoreApplication::sendPostedEvents();
                          },
                          [&] { show(pairs().first().ours); }},
                         {u"another palette, Basic style"_s,
                          [&] {
                              QPalette palette = QGuiApplication::palette();
                              const bool dark = peerRound++ % 2 != 0;
                              palette.setColor(QPalette::Button, dark ? Qt::black : Qt::white);
                              palette.setColor(QPalette::ButtonText, dark ? Qt::white : Qt::black);
                              QGuiApplication::setPalette(palette);
                              QCoreApplication::sendPostedEvents();
                          },
                          [&] { show(pairs().first().peer); }},
                         0.5, 1, 7);
}

} // namespace

int main(int argc, char **argv)
{
    const BenchSurroundings surroundings;
    BenchHost application(argc, argv);

    QQuickView view(application.getQmlEngine(), nullptr);
    view.resize(800, 600);
    view.show();
    compareCreation(view);
    compareIcons(view);
    compareThemeSwitch(view, application);
    QLoggingCategory::setFilterRules(u"default=false"_s); // not every component is at ease by itself
    listComponents(view.engine());
    return EXIT_SUCCESS;
}
