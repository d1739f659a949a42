#include <TestCase.h>
#include <WQuickView.h>

#include <QAccessible>
#include <QImage>
#include <QProcess>
#include <QQuickItem>
#include <QSettings>
#include <QTimer>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

int starterMain(int argc, char **argv);

namespace {

const QList<LogRecorder::Line> StartLines{{QtDebugMsg, u"[UILifecycle][Startup] Creating WQmlEngine."_s},
                                          {QtDebugMsg, u"[UILifecycle][Startup] Finished creating WQmlEngine."_s}};

/// What was logged up to the first turn of the event loop.
QList<LogRecorder::Line> startLog;

WApplication *application()
{
    return qobject_cast<WApplication *>(qApp);
}

QList<QQuickWindow *> windows()
{
    QList<QQuickWindow *> visible;
    for (QWindow *window : QGuiApplication::topLevelWindows()) {
        if (auto *view = qobject_cast<QQuickWindow *>(window); view && view->isVisible())
            visible.append(view);
    }
    return visible;
}

QQuickItem *itemWithText(QQuickItem *root, const QString &text)
{
    if (root->property("text").toString() == text && root->property("font").isValid())
        return root;
    for (QQuickItem *child : root->childItems()) {
        if (QQuickItem *found = itemWithText(child, text))
            return found;
    }
    return nullptr;
}

QPoint centerOf(const QQuickItem *item)
{
    return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
}

QColor colorOf(const char *token)
{
    return application()->getColorSet(QString::fromLatin1(token)).normal;
}

qsizetype countPixels(const QImage &image, const QColor &color)
{
    qsizetype count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == color;
    }
    return count;
}

int largestDifference(const QImage &one, const QImage &other)
{
    if (one.size() != other.size())
        return 255;
    int largest = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb first = one.pixel(x, y);
            const QRgb second = other.pixel(x, y);
            largest = std::max({largest, std::abs(qRed(first) - qRed(second)), std::abs(qGreen(first) - qGreen(second)),
                                std::abs(qBlue(first) - qBlue(second))});
        }
    }
    return largest;
}

} // namespace

/// Runs inside the starter's own event loop, from its start to the end of its last window.
class tst_Starter : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsQuietly();
    void showsWindow();
    void greets();
    void togglesTheme_data() { addActivations(); }
    void togglesTheme();
    void opensDialog_data() { addActivations(); }
    void opensDialog();
    void followsFontScale();
    void programRuns();
    void closes();

private:
    static void addActivations()
    {
        QTest::addColumn<QString>("with");
        QTest::newRow("mouse") << u"mouse"_s;
        QTest::newRow("keyboard") << u"keyboard"_s;
        QTest::newRow("assistive technology") << u"assistive technology"_s;
    }

    QQuickWindow *window() const { return windows().value(0); }
    QQuickItem *item(const QString &text) const { return itemWithText(window()->contentItem(), text); }
    QImage grab() const { return window()->grabWindow().convertToFormat(QImage::Format_RGB32); }
    void activate(const QString &link, const QString &with) const;
    /// No link has the keyboard.
    void dropFocus() const
    {
        if (QQuickItem *focused = window()->activeFocusItem(); focused && focused != window()->contentItem())
            focused->setFocus(false);
    }
};

void tst_Starter::activate(const QString &link, const QString &with) const
{
    QQuickItem *target = item(link);
    QVERIFY2(target, qPrintable(link));
    if (with == "mouse"_L1) {
        QTest::mouseClick(window(), Qt::LeftButton, {}, centerOf(target));
    } else if (with == "keyboard"_L1) {
        window()->requestActivate(); // keys go to the active window only
        QVERIFY(QTest::qWaitForWindowActive(window()));
        for (int tabs = 0; tabs < 5 && !target->hasActiveFocus(); ++tabs)
            QTest::keyClick(window(), Qt::Key_Tab);
        QVERIFY(target->hasActiveFocus());
        QVERIFY(target->property("font").value<QFont>().underline());
        QTest::keyClick(window(), Qt::Key_Return);
    } else {
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(target);
        QVERIFY(accessible);
        QCOMPARE(accessible->role(), QAccessible::Link);
        QCOMPARE(accessible->text(QAccessible::Name), link);
        QVERIFY(accessible->actionInterface());
        accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }
}

void tst_Starter::startsQuietly()
{
    QCOMPARE(startLog, StartLines);
    LogRecorder recorder;
    QVERIFY(QTest::qWaitFor([this] { return window() && window()->isExposed(); }));
    QCOMPARE(recorder.lines(), QList<LogRecorder::Line>());
}

void tst_Starter::showsWindow()
{
    QCOMPARE(windows().size(), 1);
    QVERIFY(QTest::qWaitForWindowActive(window()));
    QCOMPARE(window()->size(), QSize(480, 280));
    QCOMPARE(application()->getThemeMode(), u"default"_s);

    const QImage picture = grab();
    QCOMPARE(picture.size(), window()->size() * window()->devicePixelRatio());
    QCOMPARE(picture.pixelColor(2, 2), colorOf("panel-primary-background"));
    QCOMPARE(picture.pixelColor(picture.width() - 3, picture.height() - 3), colorOf("panel-primary-background"));
}

void tst_Starter::greets()
{
    QVERIFY(QTest::qWaitFor([this] { return item(u"Hello, world!"_s); }));
    const QQuickItem *greeting = item(u"Hello, world!"_s);
    QVERIFY(greeting->isVisible());
    QCOMPARE(greeting->property("color").value<QColor>(), colorOf("label-primary-text"));
    // In the middle of the space above the links, icon above text.
    QCOMPARE_LE(std::abs(centerOf(greeting).x() - window()->width() / 2), 1);
    QCOMPARE_LT(centerOf(greeting).y(), 280 - 64);
    const QQuickItem *icon = greeting->parentItem()->childItems().value(0);
    QVERIFY(QTest::qWaitFor([icon] { return icon->property("progress").toReal() == 1.0; }));
    QCOMPARE(QSizeF(icon->width(), icon->height()), QSizeF(48, 48));
    QCOMPARE_LT(icon->y(), greeting->y());

    const QImage picture = grab();
    const qreal ratio = window()->devicePixelRatio();
    const QPointF corner = icon->mapToScene(QPointF(0, 0)) * ratio;
    const QImage iconPicture = picture.copy(QRect(corner.toPoint(), QSize(48, 48) * ratio));
    QCOMPARE_GT(countPixels(iconPicture, colorOf("label-primary-text")), 50);
    QCOMPARE_GT(countPixels(iconPicture, colorOf("panel-primary-background")), 500);
}

// There and back: everything follows, and the last picture is the first.
void tst_Starter::togglesTheme()
{
    QFETCH(const QString, with);
    const auto pressed = [&](const QString &link, const QString &mode) {
        QSignalSpy darkChanged(application(), &WApplication::isDarkThemeChanged);
        LogRecorder recorder;
        activate(link, with);
        QCOMPARE(recorder.lines(), (QList<LogRecorder::Line>{{QtDebugMsg, u"setThemeMode:  \"%1\""_s.arg(mode)}}));
        const bool dark = mode == "dark"_L1;
        QCOMPARE(darkChanged.count(), 1);
        QCOMPARE(darkChanged[0][0].toBool(), dark);
        QCOMPARE(application()->getThemeMode(), mode);
        QCOMPARE(application()->property("isDarkTheme").toBool(), dark);
        QCOMPARE(QSettings().value("ThemeMode").toString(), mode);
        QVERIFY(item(dark ? u"Light theme"_s : u"Dark theme"_s));
        QVERIFY(!item(link));
        QCOMPARE(item(u"Hello, world!"_s)->property("color").value<QColor>(), colorOf("label-primary-text"));
        QCOMPARE(item(u"About"_s)->property("color").value<QColor>(), colorOf("hyperlink-accent-text"));
        QCOMPARE(item(dark ? u"Light theme"_s : u"Dark theme"_s)->hasActiveFocus(), with == "keyboard"_L1);
        const QImage picture = grab();
        QCOMPARE(picture.pixelColor(2, 2), colorOf("panel-primary-background"));
        QCOMPARE_GT(countPixels(picture, colorOf("label-primary-text")), 100);
    };
    dropFocus();
    const QImage light = grab();
    const QColor lightPanel = colorOf("panel-primary-background");
    pressed(u"Dark theme"_s, u"dark"_s);
    if (QTest::currentTestFailed())
        return;
    QCOMPARE_NE(colorOf("panel-primary-background"), lightPanel);
    QCOMPARE(countPixels(grab(), lightPanel), 0);
    pressed(u"Light theme"_s, u"default"_s);
    if (QTest::currentTestFailed())
        return;
    dropFocus();
    QCOMPARE_LE(largestDifference(grab(), light), 10); // glyphs are blended anew and round otherwise
}

void tst_Starter::opensDialog()
{
    QFETCH(const QString, with);
    QQuickWindow *main = window();
    LogRecorder recorder;
    activate(u"About"_s, with);
    QVERIFY(QTest::qWaitFor([] { return windows().size() == 2; }));
    QPointer<QQuickWindow> dialog = windows().at(windows().indexOf(main) == 0 ? 1 : 0);
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    QCOMPARE(dialog->size(), QSize(320, 120));
    QCOMPARE(dialog->flags() & Qt::WindowType_Mask, Qt::Dialog);
    QCOMPARE(dialog->transientParent(), main);
    QQuickItem *text = itemWithText(dialog->contentItem(), u"The smallest host of LumakitQml."_s);
    QVERIFY(text);
    QCOMPARE(text->property("color").value<QColor>(), colorOf("label-primary-text"));
    QCOMPARE(dialog->grabWindow().pixelColor(2, 2), colorOf("panel-primary-background"));

    dialog->close();
    QVERIFY(QTest::qWaitFor([&] { return !dialog; }));
    QCOMPARE(windows(), QList<QQuickWindow *>{main});
    QCOMPARE(recorder.lines(), QList<LogRecorder::Line>());
}

void tst_Starter::followsFontScale()
{
    QQuickItem *greeting = item(u"Hello, world!"_s);
    const qreal width = greeting->width();
    application()->setFontScaleFactor(1.5F);
    QCOMPARE(greeting->property("font").value<QFont>().pixelSize(), 39);
    QCOMPARE_GT(greeting->width(), 1.3 * width);
    application()->setFontScaleFactor(1.0F);
    QCOMPARE(greeting->property("font").value<QFont>().pixelSize(), 26);
    QCOMPARE(greeting->width(), width);
}

// The program as it is built: it has its resources and stays.
void tst_Starter::programRuns()
{
    const QTemporaryDir configuration;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_CONFIG_HOME"_s, configuration.path());
    environment.insert(u"QT_LOGGING_RULES"_s, u"qt.scenegraph.time.renderloop.debug=true"_s); // a line a frame
    QProcess program;
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(QStringLiteral(STARTER_PROGRAM));
    QVERIFY(program.waitForStarted());
    QByteArray output;
    QVERIFY(QTest::qWaitFor([&] { return (output += program.readAll()).contains("qt.scenegraph.time.renderloop"); },
                            20'000));
    QCOMPARE(program.state(), QProcess::Running);
    program.kill();
    QVERIFY(program.waitForFinished());

    QStringList lines = QString::fromUtf8(output).split(u'\n', Qt::SkipEmptyParts);
    lines.removeIf([](const QString &line) { return line.startsWith("qt.scenegraph.time.renderloop"_L1); });
    QStringList expected;
    for (const LogRecorder::Line &line : StartLines)
        expected.append(line.text);
    QCOMPARE(lines, expected);
}

// The end of the last window ends the program, which the main function sees.
void tst_Starter::closes()
{
    QCOMPARE(windows().size(), 1);
    QPointer<QQuickWindow> main = window();
    LogRecorder recorder;
    QSignalSpy lastClosed(application(), &QGuiApplication::lastWindowClosed);
    main->close();
    QVERIFY(QTest::qWaitFor([&] { return !main; }));
    QCOMPARE(lastClosed.count(), 1);
    QCOMPARE(recorder.lines(), QList<LogRecorder::Line>());
}

namespace {

std::unique_ptr<LogRecorder> startRecorder;
int testResult = -1;
int testArgc;
char **testArgv;

void runTest()
{
    // The starter's event loop runs by the time a posted call arrives.
    QMetaObject::invokeMethod(
        qApp,
        [] {
            startLog = startRecorder->lines();
            startRecorder.reset();
            tst_Starter test;
            testResult = QTest::qExec(&test, testArgc, testArgv);
            constexpr int DoesNotEnd = 100;
            QTimer::singleShot(10'000, qApp, [] { QCoreApplication::exit(DoesNotEnd); });
            if (testResult != 0) // a window may be open still
                QCoreApplication::exit(testResult);
        },
        Qt::QueuedConnection);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(runTest)

int main(int argc, char **argv)
{
    TestApplication::isolateSettings();
    testArgc = argc;
    testArgv = argv;
    startRecorder = std::make_unique<LogRecorder>();
    int programArgc = 1;
    char *programArgv[] = {argv[0], nullptr};
    const int exitCode = starterMain(programArgc, programArgv);
    if (testResult == 0 && exitCode != 0)
        fprintf(stderr, "FAIL!  : the starter ended with %d\n", exitCode);
    return testResult != 0 ? testResult : exitCode;
}

#include "tst_starter.moc"
