#include <TestCase.h>

#include <GalleryApplication.h>
#include <GalleryComponents.h>
#include <GalleryData.h>
#include <GalleryMovieSource.h>
#include <GalleryPopups.h>

#include <WMovie.h>
#include <WPopupQuickView.h>
#include <WQmlBalloon.h>
#include <WQmlEngine.h>
#include <WQmlHalfPill.h>

#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <functional>
#include <numeric>
#include <span>

using namespace Qt::StringLiterals;

namespace {

const QSize WindowSize(1280, 840);
const QStringList Themes{u"default"_s, u"dark"_s, u"highcontrast"_s};
const QStringList Popups{u"dialog"_s, u"menu"_s, u"tooltip"_s};
const QStringList Suffixes = Themes + QStringList{u"mirrored"_s, u"large"_s};

const QStringList StartLines{u"[UILifecycle][Startup] Creating WQmlEngine."_s,
                             u"[UILifecycle][Startup] Finished creating WQmlEngine."_s};
const QStringList RenderLines = StartLines
    + QStringList{u"setThemeMode:  \"dark\""_s, u"setThemeMode:  \"highcontrast\""_s, u"setThemeMode:  \"default\""_s};

// A mode without theme files: a start that reads it complains about both.
const QByteArray StoredMode = "[General]\nThemeMode=sepia\n";
const QString NoTokens = u"Could not find the 'tokens' object in the json file"_s;

QStringList linesOf(const QByteArray &output)
{
    return QString::fromUtf8(output).split(u'\n', Qt::SkipEmptyParts);
}

std::span<const QRgb> pixels(const QImage &image)
{
    return {reinterpret_cast<const QRgb *>(image.constBits()), size_t(image.sizeInBytes()) / sizeof(QRgb)};
}

QImage readPicture(const QString &path)
{
    return QImage(path).convertToFormat(QImage::Format_RGB32);
}

/// Of two pictures of the same size.
double shareOfDifferentPixels(const QImage &one, const QImage &other)
{
    const auto same = std::inner_product(pixels(one).begin(), pixels(one).end(), pixels(other).begin(), qint64(0),
                                         std::plus(), std::equal_to());
    return 1.0 - double(same) / double(pixels(one).size());
}

bool isOfOneColor(const QImage &image)
{
    const auto all = pixels(image);
    return std::adjacent_find(all.begin(), all.end(), std::not_equal_to()) == all.end();
}

/// "icons-2-dark.png": page "icons", screenful 2, suffix "dark". A page of one screenful has no number.
/// "popups-menu-dark.png": page "popups", popup "menu", suffix "dark".
struct PictureName
{
    QString page;
    int screenful = 0; ///< 0 for a popup
    QString popup;
    QString suffix;

    explicit PictureName(const QString &path)
    {
        static const QRegularExpression form(u"^([a-z]+)(?:-([1-9][0-9]*)|-([a-z]+))?-([a-z]+)\\.png$"_s);
        const auto match = form.match(QFileInfo(path).fileName());
        page = match.captured(1);
        popup = match.captured(3);
        screenful = match.captured(2).isEmpty() ? (popup.isEmpty() ? 1 : 0) : match.captured(2).toInt();
        suffix = match.captured(4);
    }
};

/// The item and everything in it; what a repeater makes has no parent object.
QList<QQuickItem *> itemsIn(QQuickItem *item)
{
    QList<QQuickItem *> items{item};
    for (QQuickItem *child : item->childItems())
        items += itemsIn(child);
    return items;
}

template<typename T> QList<T *> findItems(QQuickItem *root)
{
    QList<T *> found;
    for (QQuickItem *item : itemsIn(root)) {
        if (auto *wanted = qobject_cast<T *>(item))
            found.append(wanted);
    }
    return found;
}

} // namespace

class tst_Gallery : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void help();
    void refuses_data();
    void refuses();
    void renders();
    void renders_pages();
    void renders_popups();
    void picture_data() { addPictures(); }
    void picture();
    void themeShows_data();
    void themeShows();
    void nextScreenful_data();
    void nextScreenful();
    void rendersScaled();
    void segmentedControl_data();
    void segmentedControl();
    void segmentsAreOneBar_data();
    void segmentsAreOneBar();
    void balloons();
    void popupPointsAtItsOpener_data();
    void popupPointsAtItsOpener();
    void openerMovesByKey();
    void openerIsDragged();
    void popupGrows();
    void popupCloses_data();
    void popupCloses();
    void popupReportsTheChoice();
    void toolTip();
    void movies();
    void moviesFollowTheTheme();
    void movieSource_data();
    void movieSource();
    void movieSourceFails();

protected:
    void tidy() override;

private:
    struct Outcome
    {
        int exitCode = -1;
        QStringList output;
        QStringList log;
        QByteArray settings; ///< what is stored for the program afterwards
    };

    Outcome run(const QStringList &arguments, const QString &scaleFactor = {}) const;
    void addPictures() const;
    void openPage(const QString &name);
    QQuickItem *item(const QString &objectName) const;
    QQuickItem *button(const QString &text) const;
    GalleryPopups *popups() const;
    QPointer<WPopupQuickView> showPopup(GalleryPopups::Kind kind, Qt::ArrowType arrow) const;
    void press(QQuickItem *target, Qt::Key key) const;
    QString path(const QString &page, int screenful, const QString &suffix) const;

    QTemporaryDir m_folder;
    QTemporaryDir m_configuration;
    QStringList m_pictures;
    QPointer<WQuickView> m_window;
};

/// Runs the program for a user who has a theme mode stored.
tst_Gallery::Outcome tst_Gallery::run(const QStringList &arguments, const QString &scaleFactor) const
{
    QFile settings(m_configuration.filePath(u"LumakitQml/Gallery.conf"_s));
    if (!settings.open(QIODevice::WriteOnly) || settings.write(StoredMode) != StoredMode.size())
        return {};
    settings.close();

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString &name : environment.keys()) {
        if (name.startsWith("QT_SCALE_"_L1) || name.startsWith("QT_SCREEN_"_L1) || name.startsWith("QT_LOGGING_"_L1)
            || name == "QT_MESSAGE_PATTERN"_L1 || name == "QT_FONT_DPI"_L1)
            environment.remove(name);
    }
    environment.insert(u"XDG_CONFIG_HOME"_s, m_configuration.path());
    if (!scaleFactor.isEmpty())
        environment.insert(u"QT_SCALE_FACTOR"_s, scaleFactor);

    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(GALLERY_PROGRAM), arguments);
    Outcome outcome;
    if (!program.waitForFinished(280'000)) {
        program.kill();
        program.waitForFinished();
    } else if (program.exitStatus() == QProcess::NormalExit) {
        outcome.exitCode = program.exitCode();
    }
    outcome.output = linesOf(program.readAllStandardOutput());
    outcome.log = linesOf(program.readAllStandardError());
    if (settings.open(QIODevice::ReadOnly))
        outcome.settings = settings.readAll();
    return outcome;
}

void tst_Gallery::addPictures() const
{
    QTest::addColumn<QString>("path");
    QVERIFY(!m_pictures.isEmpty());
    for (const QString &picture : m_pictures)
        QTest::newRow(qPrintable(QFileInfo(picture).fileName())) << picture;
}

/// Empty when there is no such picture.
QString tst_Gallery::path(const QString &page, int screenful, const QString &suffix) const
{
    const auto found = std::find_if(m_pictures.begin(), m_pictures.end(), [&](const QString &picture) {
        const PictureName name(picture);
        return name.page == page && name.screenful == screenful && name.suffix == suffix;
    });
    return found != m_pictures.end() ? *found : QString();
}

void tst_Gallery::initTestCase()
{
    QVERIFY(m_folder.isValid());
    QVERIFY(m_configuration.isValid());
    QVERIFY(QDir(m_configuration.path()).mkpath(u"LumakitQml"_s));
}

void tst_Gallery::help()
{
    const Outcome outcome = run({u"--help"_s});
    QCOMPARE(outcome.exitCode, 0);
    QVERIFY(outcome.output.join(u'\n').contains("--render <folder>"_L1));
    // Without --render the stored theme mode counts.
    QCOMPARE(outcome.log, QStringList({NoTokens, NoTokens}));
    QCOMPARE(outcome.settings, StoredMode);
}

void tst_Gallery::refuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("log");
    QTest::addColumn<bool>("starts");
    const QString file = m_configuration.filePath(u"file"_s);
    QVERIFY(QFile(file).open(QIODevice::WriteOnly));
    const QString belowFile = file + u"/below"_s;
    const QString missing = m_configuration.filePath(u"missing"_s);
    const auto cannotWrite = [](const QString &folder) { return u"Cannot write %1/"_s.arg(folder); };
    QTest::newRow("a folder below a file")
        << QStringList{u"--render"_s, belowFile} << QStringList{cannotWrite(belowFile)} << true;
    QTest::newRow("a file") << QStringList{u"--render"_s, file} << QStringList{cannotWrite(file)} << true;
    QTest::newRow("a missing folder") << QStringList{u"--render"_s, missing} << QStringList{cannotWrite(missing)}
                                      << true;
    QTest::newRow("no folder") << QStringList{u"--render"_s}
                               << QStringList{u"Gallery: Missing value after '--render'."_s} << false;
    QTest::newRow("unknown option") << QStringList{u"--picture"_s, missing}
                                    << QStringList{NoTokens, NoTokens, u"Gallery: Unknown option 'picture'."_s}
                                    << false;
}

void tst_Gallery::refuses()
{
    QFETCH(const QStringList, arguments);
    QFETCH(QStringList, log);
    QFETCH(const bool, starts);
    const Outcome outcome = run(arguments);
    QCOMPARE(outcome.exitCode, 1);
    QCOMPARE(outcome.output, QStringList());
    if (starts)
        log = StartLines + log;
    QCOMPARE(outcome.log.size(), log.size());
    for (qsizetype line = 0; line < log.size(); ++line) {
        const QString &got = outcome.log[line];
        QVERIFY2(got == log[line] || (log[line].endsWith(u'/') && got.startsWith(log[line])), qPrintable(got));
    }
    QCOMPARE(outcome.settings, StoredMode);
}

void tst_Gallery::renders()
{
    const Outcome outcome = run({u"--render"_s, m_folder.path()});
    m_pictures = outcome.output;
    QCOMPARE(outcome.log, RenderLines);
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(outcome.settings, StoredMode);

    QStringList printed = outcome.output;
    std::sort(printed.begin(), printed.end());
    QStringList written;
    for (const QString &file : QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden))
        written.append(m_folder.filePath(file));
    std::sort(written.begin(), written.end());
    QCOMPARE(printed, written);
}

// Every page, in every theme the same number of screenfuls.
void tst_Gallery::renders_pages()
{
    QStringList pages;
    const QDir sources(QStringLiteral(GALLERY_SOURCES "/qml"));
    for (QString file : sources.entryList({u"Gallery?*Page.qml"_s}, QDir::Files))
        pages.append(file.remove(u"Gallery"_s).remove(u"Page.qml"_s).toLower());
    pages.removeOne(u"components"_s); // stands for the pages of the families
    for (const QString &family : GalleryComponents::families())
        pages.append(family.toLower());
    QCOMPARE_GE(pages.size(), 3);

    QStringList rendered;
    for (const QString &picture : std::as_const(m_pictures)) {
        const PictureName name(picture);
        QVERIFY2(Suffixes.contains(name.suffix), qPrintable(picture));
        rendered.append(name.page);
    }
    rendered.removeDuplicates();
    rendered.sort();
    pages.sort();
    QCOMPARE(rendered, pages);

    for (const QString &page : std::as_const(pages)) {
        QMap<QString, QList<int>> screenfuls;
        for (const QString &picture : std::as_const(m_pictures)) {
            if (const PictureName name(picture); name.page == page && name.popup.isEmpty())
                screenfuls[name.suffix].append(name.screenful);
        }
        for (const QString &suffix : Suffixes) {
            QList<int> numbers;
            for (qsizetype number = 1; number <= screenfuls[suffix].size(); ++number)
                numbers.append(int(number));
            QCOMPARE_GT(numbers.size(), 0);
            QCOMPARE(screenfuls[suffix], numbers);
            if (suffix == "large"_L1)
                QCOMPARE_GE(numbers.size(), screenfuls[u"default"_s].size());
            else
                QCOMPARE(numbers.size(), screenfuls[u"default"_s].size());
        }
    }
}

// Every popup once in every theme; round corners let through what is behind.
void tst_Gallery::renders_popups()
{
    QMap<QString, QStringList> rendered;
    for (const QString &picture : std::as_const(m_pictures)) {
        const PictureName name(picture);
        if (name.popup.isEmpty())
            continue;
        QCOMPARE(name.page, u"popups"_s);
        rendered[name.suffix].append(name.popup);
        const QImage image(picture);
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(image.pixelColor(image.width() / 2, image.height() / 2).alpha(), 255);
    }
    for (const QString &suffix : Suffixes) {
        rendered[suffix].sort();
        QCOMPARE(rendered[suffix], Popups);
    }
}

void tst_Gallery::picture()
{
    QFETCH(const QString, path);
    const QImage image = readPicture(path);
    if (PictureName(path).popup.isEmpty())
        QCOMPARE(image.size(), WindowSize);
    QVERIFY(!isOfOneColor(image));
}

void tst_Gallery::themeShows_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("other");
    QTest::addColumn<double>("least"); // the share of pixels that differ
    QVERIFY(!m_pictures.isEmpty());
    for (const QString &picture : std::as_const(m_pictures)) {
        const PictureName name(picture);
        if (name.suffix != "default"_L1 || !name.popup.isEmpty())
            continue;
        const auto row = [&](const QString &suffix, double least) {
            QTest::addRow("%s %d: %s", qPrintable(name.page), name.screenful, qPrintable(suffix))
                << path(name.page, name.screenful, suffix) << picture << least;
        };
        row(u"dark"_s, 0.5);
        row(u"highcontrast"_s, 0.5);
        row(u"mirrored"_s, 0.005);
        row(u"large"_s, 0.005);
    }
}

void tst_Gallery::themeShows()
{
    QFETCH(const QString, path);
    QFETCH(const QString, other);
    QFETCH(const double, least);
    QVERIFY(!path.isEmpty());
    const QImage one = readPicture(path);
    const QImage two = readPicture(other);
    QCOMPARE(one.size(), WindowSize);
    QCOMPARE(two.size(), WindowSize);
    QCOMPARE_GE(shareOfDifferentPixels(one, two), least);
}

void tst_Gallery::nextScreenful_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("next");
    for (const QString &picture : std::as_const(m_pictures)) {
        const PictureName name(picture);
        if (!name.popup.isEmpty())
            continue;
        const QString next = path(name.page, name.screenful + 1, name.suffix);
        if (!next.isEmpty())
            QTest::newRow(qPrintable(QFileInfo(picture).fileName())) << picture << next;
    }
}

void tst_Gallery::nextScreenful()
{
    QFETCH(const QString, path);
    QFETCH(const QString, next);
    QCOMPARE_NE(readPicture(path), readPicture(next));
}

// 1.5 device pixels a pixel; and the option in its other form leaves the stored mode alone too.
void tst_Gallery::rendersScaled()
{
    const QTemporaryDir folder;
    const Outcome outcome = run({u"--render="_s + folder.path()}, u"1.5"_s);
    QCOMPARE(outcome.log, RenderLines);
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(outcome.settings, StoredMode);

    QStringList names;
    QStringList wrongSize;
    for (const QString &picture : outcome.output) {
        names.append(QFileInfo(picture).fileName());
        if (PictureName(picture).popup.isEmpty() && QImageReader(picture).size() != WindowSize * 1.5)
            wrongSize.append(picture);
    }
    QCOMPARE(wrongSize, QStringList());
    QStringList unscaled;
    for (const QString &picture : std::as_const(m_pictures))
        unscaled.append(QFileInfo(picture).fileName());
    QCOMPARE(names, unscaled);

    // The same content, finer: only edges of glyphs and icons differ once it is scaled back.
    const QImage fine = readPicture(folder.filePath(u"icons-1-default.png"_s));
    const QImage coarse = readPicture(path(u"icons"_s, 1, u"default"_s));
    const QImage scaledBack = fine.scaled(WindowSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QCOMPARE_LT(shareOfDifferentPixels(coarse, scaledBack.convertToFormat(QImage::Format_RGB32)), 0.2);
}

void tst_Gallery::tidy()
{
    if (!m_window)
        return;
    m_window->close();
    QTRY_VERIFY(!m_window);
    auto *application = qobject_cast<GalleryApplication *>(qApp);
    if (application->getThemeMode() != "default"_L1)
        application->setThemeMode(u"default"_s);
}

/// Shows the gallery on the whole screen.
void tst_Gallery::openPage(const QString &name)
{
    m_window = WQmlEngine::createQmlWindow(u"Gallery.qml"_s);
    QVERIFY(m_window && m_window->rootObject());
    const QStringList pages = m_window->rootObject()->property("pages").toStringList();
    QVERIFY(pages.contains(name));
    m_window->rootObject()->setProperty("currentPage", pages.indexOf(name));
    m_window->showFullScreen();
    QTRY_COMPARE(m_window->size(), m_window->screen()->size());
    m_window->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
}

QQuickItem *tst_Gallery::item(const QString &objectName) const
{
    return m_window->rootObject()->findChild<QQuickItem *>(objectName);
}

/// The visible button with that text, in the window or in the popup.
QQuickItem *tst_Gallery::button(const QString &text) const
{
    QList<QQuickItem *> items = itemsIn(m_window->rootObject());
    if (popups()->view())
        items += itemsIn(popups()->view()->rootObject());
    const auto found = std::find_if(items.cbegin(), items.cend(), [&](const QQuickItem *candidate) {
        return candidate->isVisible() && candidate->property("down").isValid()
            && candidate->property("text").toString() == text;
    });
    return found == items.cend() ? nullptr : *found;
}

GalleryPopups *tst_Gallery::popups() const
{
    return m_window->engine()->singletonInstance<GalleryPopups *>(u"Gallery"_s, u"Popups"_s);
}

/// Opens it at the anchor, and again when it closes: the window manager may move the focus once more after the window
/// was activated.
QPointer<WPopupQuickView> tst_Gallery::showPopup(GalleryPopups::Kind kind, Qt::ArrowType arrow) const
{
    const bool shown = QTest::qWaitFor([&] {
        const WPopupQuickView *view = popups()->view();
        if (!view && WApplication::isInFocus()) {
            popups()->show(kind, item(u"anchor"_s), arrow);
            if (kind != GalleryPopups::ToolTip)
                popups()->activate();
        } else if (!view) {
            m_window->requestActivate();
        } else if (kind != GalleryPopups::ToolTip && view->isExposed() && !view->isActive()) {
            popups()->activate(); // asked before it was mapped, a window manager may not listen
        }
        return view && view->isExposed() && (kind == GalleryPopups::ToolTip || view->isActive());
    });
    return shown ? popups()->view() : nullptr;
}

/// As if the item had been reached with the Tab key.
void tst_Gallery::press(QQuickItem *target, Qt::Key key) const
{
    target->setFocus(false);
    target->forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(target->window(), key);
}

void tst_Gallery::segmentedControl_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<int>("from");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<int>("to");
    QTest::newRow("right") << false << 0 << Qt::Key_Right << 1;
    QTest::newRow("right again") << false << 1 << Qt::Key_Right << 2;
    QTest::newRow("right at the end") << false << 2 << Qt::Key_Right << 2;
    QTest::newRow("left") << false << 2 << Qt::Key_Left << 1;
    QTest::newRow("left at the beginning") << false << 0 << Qt::Key_Left << 0;
    QTest::newRow("mirrored left") << true << 0 << Qt::Key_Left << 1;
    QTest::newRow("mirrored right") << true << 1 << Qt::Key_Right << 0;
    QTest::newRow("mirrored right at the beginning") << true << 0 << Qt::Key_Right << 0;
}

void tst_Gallery::segmentedControl()
{
    QFETCH(const bool, mirrored);
    QFETCH(const int, from);
    QFETCH(const Qt::Key, key);
    QFETCH(const int, to);
    const QStringList names{u"Popover"_s, u"Accent"_s, u"Coachmark"_s};
    openPage(u"Balloons"_s);
    auto *data = m_window->engine()->singletonInstance<GalleryData *>(u"Gallery"_s, u"Gallery"_s);
    data->setMirrored(mirrored);
    const auto restore = qScopeGuard([&] { data->setMirrored(false); });

    QTest::mouseClick(m_window, Qt::LeftButton, {}, button(names[from])->mapToScene({20, 16}).toPoint());
    QCOMPARE(item(u"fill"_s)->property("current").toInt(), from);
    QVERIFY(!button(names[from])->property("visualFocus").toBool());

    press(button(names[from]), key);
    QCOMPARE(item(u"fill"_s)->property("current").toInt(), to);
    for (int index = 0; index < names.size(); ++index) {
        QQuickItem *segment = button(names[index]);
        QCOMPARE(segment->hasActiveFocus(), index == to);
        QCOMPARE(segment->property("visualFocus").toBool(), index == to);
        QVERIFY(segment->activeFocusOnTab());
        const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(segment);
        QVERIFY(accessible);
        QCOMPARE(accessible->role(), QAccessible::RadioButton);
        QCOMPARE(accessible->text(QAccessible::Name), names[index]);
        QCOMPARE(bool(accessible->state().checked), index == to);
    }
}

void tst_Gallery::segmentsAreOneBar_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::newRow("left to right") << false;
    QTest::newRow("right to left") << true;
}

void tst_Gallery::segmentsAreOneBar()
{
    QFETCH(const bool, mirrored);
    openPage(u"Balloons"_s);
    auto *data = m_window->engine()->singletonInstance<GalleryData *>(u"Gallery"_s, u"Gallery"_s);
    data->setMirrored(mirrored);
    const auto restore = qScopeGuard([&] { data->setMirrored(false); });
    QList<WQmlHalfPill *> pieces;
    for (const QString &name : {u"Popover"_s, u"Accent"_s, u"Coachmark"_s})
        pieces += findItems<WQmlHalfPill>(button(name));
    QCOMPARE(pieces.size(), 3);
    QTRY_COMPARE(pieces[0]->mapToScene({}).x() > pieces[2]->mapToScene({}).x(), mirrored);
    if (mirrored)
        std::reverse(pieces.begin(), pieces.end());

    const QList<WQmlHalfPill::RoundEdge> edges{WQmlHalfPill::Left, WQmlHalfPill::None, WQmlHalfPill::Right};
    for (qsizetype i = 0; i < pieces.size(); ++i) {
        QCOMPARE(pieces[i]->property("edge").value<WQmlHalfPill::RoundEdge>(), edges[i]);
        QCOMPARE(pieces[i]->property("borderLeft").toBool(), i == 0);
        QCOMPARE(pieces[i]->property("borderRight").toBool(), true);
        if (i > 0)
            QCOMPARE(pieces[i]->mapToScene({}).x(), pieces[i - 1]->mapToScene({pieces[i - 1]->width(), 0}).x());
    }
}

// Every edge and every alignment once, driven by the sliders.
void tst_Gallery::balloons()
{
    openPage(u"Balloons"_s);
    const QList<WQmlBalloon *> all = findItems<WQmlBalloon>(m_window->rootObject());
    QCOMPARE(all.size(), 25);
    QSet<std::pair<int, int>> seen;
    for (const WQmlBalloon *balloon : all)
        seen.insert({balloon->arrowAnchor(), balloon->arrowAlignment()});
    QCOMPARE(seen.size(), 25);

    QQuickItem *slider = nullptr;
    for (QQuickItem *candidate : itemsIn(m_window->rootObject())) {
        const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(candidate);
        if (accessible && accessible->role() == QAccessible::Slider
            && accessible->text(QAccessible::Name) == "Arrow size"_L1)
            slider = candidate;
    }
    QVERIFY(slider);
    QCOMPARE(all.first()->arrowSize(), 10);
    const QImage before = m_window->grabWindow();
    press(slider, Qt::Key_Right);
    QVERIFY(slider->property("visualFocus").toBool());
    for (const WQmlBalloon *balloon : all)
        QCOMPARE(balloon->arrowSize(), 11);
    // Repainted, though a balloon does not repaint by itself for it.
    const QRect last = QRectF(all.last()->mapToScene({}), all.last()->size()).toAlignedRect();
    QTRY_VERIFY(m_window->grabWindow().copy(last) != before.copy(last));
}

void tst_Gallery::popupPointsAtItsOpener_data()
{
    QTest::addColumn<GalleryPopups::Kind>("kind");
    QTest::addColumn<Qt::ArrowType>("arrow");
    QTest::addColumn<QPointF>("where"); // share of the room that the opener has
    QTest::addColumn<WQmlBalloon::ArrowAnchor>("anchor");
    struct Place
    {
        const char *name;
        Qt::ArrowType arrow;
        QPointF where;
        WQmlBalloon::ArrowAnchor anchor;
    };
    const QList<Place> places{
        {"below", Qt::UpArrow, {0.5, 0.5}, WQmlBalloon::Top},
        {"above", Qt::DownArrow, {0.5, 0.5}, WQmlBalloon::Bottom},
        {"to the right", Qt::LeftArrow, {0.5, 0.5}, WQmlBalloon::Left},
        {"to the left", Qt::RightArrow, {0.5, 0.5}, WQmlBalloon::Right},
        {"flipped at the bottom", Qt::UpArrow, {0.5, 1}, WQmlBalloon::Bottom},
        {"flipped at the right", Qt::LeftArrow, {1, 0.5}, WQmlBalloon::Right},
        {"flipped at the left", Qt::RightArrow, {0, 0.5}, WQmlBalloon::Left},
        {"slid in the right corner, flipped", Qt::UpArrow, {1, 1}, WQmlBalloon::Bottom},
        {"slid at the left", Qt::UpArrow, {0, 0.2}, WQmlBalloon::Top},
        {"slid at the bottom", Qt::LeftArrow, {0.5, 1}, WQmlBalloon::Left},
    };
    const auto kinds = QMetaEnum::fromType<GalleryPopups::Kind>();
    for (int i = 0; i < kinds.keyCount(); ++i) {
        for (const Place &place : places) {
            QTest::addRow("%s %s", kinds.key(i), place.name)
                << GalleryPopups::Kind(kinds.value(i)) << place.arrow << place.where << place.anchor;
        }
    }
}

void tst_Gallery::popupPointsAtItsOpener()
{
    QFETCH(const GalleryPopups::Kind, kind);
    QFETCH(const Qt::ArrowType, arrow);
    QFETCH(const QPointF, where);
    QFETCH(const WQmlBalloon::ArrowAnchor, anchor);
    openPage(u"Popups"_s);
    QQuickItem *opener = item(u"anchor"_s);
    const QQuickItem *room = opener->parentItem();
    opener->setPosition(
        {where.x() * (room->width() - opener->width()), where.y() * (room->height() - opener->height())});

    const QPointer<WPopupQuickView> view = showPopup(kind, arrow);
    QVERIFY(view);
    QVERIFY(opener->property("open").toBool());

    const QRectF target(opener->mapToGlobal(QPointF()), opener->size());
    const auto *balloon = view->rootObject()->findChild<WQmlBalloon *>();
    QTRY_COMPARE(balloon->arrowAnchor(), anchor);
    QVERIFY(view->screen()->availableGeometry().contains(view->geometry()));
    const QRectF popup = view->geometry();
    const double alongX = popup.center().x() + balloon->arrowOffset();
    const double alongY = popup.center().y() + balloon->arrowOffset();
    const QPointF tip = anchor == WQmlBalloon::Top ? QPointF(alongX, popup.top())
        : anchor == WQmlBalloon::Bottom            ? QPointF(alongX, popup.bottom())
        : anchor == WQmlBalloon::Left              ? QPointF(popup.left(), alongY)
                                                   : QPointF(popup.right(), alongY);
    const QPointF expected = anchor == WQmlBalloon::Top ? QPointF(target.center().x(), target.bottom())
        : anchor == WQmlBalloon::Bottom                 ? QPointF(target.center().x(), target.top())
        : anchor == WQmlBalloon::Left                   ? QPointF(target.right(), target.center().y())
                                                        : QPointF(target.left(), target.center().y());
    QCOMPARE_LE((tip - expected).manhattanLength(), 2.0);

    popups()->hide();
    QTRY_VERIFY(!view);
    QVERIFY(!opener->property("open").toBool());
}

// Arrow keys move the opener and close its popup; pressed again it points at the new place.
void tst_Gallery::openerMovesByKey()
{
    openPage(u"Popups"_s);
    QQuickItem *opener = item(u"anchor"_s);
    const QPointF start = opener->position();
    press(opener, Qt::Key_Space);
    const QPointer<WPopupQuickView> first = popups()->view();
    QVERIFY(first);
    QVERIFY(QTest::qWaitForWindowExposed(first));
    const QPoint position = first->position();
    QTRY_VERIFY(first->isActive());
    QTest::keyClick(first, Qt::Key_Escape);
    QTRY_VERIFY(!first);
    QTRY_VERIFY(m_window->isActive());

    press(opener, Qt::Key_Right);
    QTest::keyClick(m_window, Qt::Key_Down);
    QCOMPARE(opener->position(), start + QPointF(16, 16));
    QVERIFY(!popups()->view());
    QTest::keyClick(m_window, Qt::Key_Space);
    QVERIFY(popups()->view());
    QTRY_COMPARE(popups()->view()->position(), position + QPoint(16, 16));

    // The edge of the room is the end.
    popups()->hide();
    QTRY_VERIFY(!popups()->view());
    QTRY_VERIFY(m_window->isActive());
    opener->setPosition({4, 4});
    press(opener, Qt::Key_Left);
    QTest::keyClick(m_window, Qt::Key_Up);
    QCOMPARE(opener->position(), QPointF(0, 0));
}

void tst_Gallery::openerIsDragged()
{
    openPage(u"Popups"_s);
    QQuickItem *opener = item(u"anchor"_s);
    const QPointF start = opener->position();
    const QPoint grip = opener->mapToScene({24, 24}).toPoint();
    QTest::mousePress(m_window, Qt::LeftButton, {}, grip);
    for (int step = 1; step <= 10; ++step)
        QTest::mouseMove(m_window, grip + QPoint(20, 10) * step);
    QVERIFY(!popups()->view());
    QTest::mouseRelease(m_window, Qt::LeftButton, {}, grip + QPoint(200, 100));
    QCOMPARE_GT(opener->x(), start.x() + 150); // what starts the drag does not count
    QCOMPARE_GT(opener->y(), start.y() + 50);
    QVERIFY(popups()->view());
    const QPointer<WPopupQuickView> view = popups()->view();
    QTRY_VERIFY(view && view->isVisible());
    QCOMPARE(view->activationRect(), QRectF(opener->mapToGlobal(QPointF()), opener->size()));
}

// An entry more, above its opener: the arrow keeps touching it.
void tst_Gallery::popupGrows()
{
    openPage(u"Popups"_s);
    const QPointer<WPopupQuickView> view = showPopup(GalleryPopups::Menu, Qt::DownArrow);
    QVERIFY(view);
    const QRect before = view->geometry();
    const int entry = qRound(button(u"Copy"_s)->height());
    for (int count = 1; count <= 3; ++count) {
        press(button(u"More"_s), Qt::Key_Return);
        const QRect grown = before.adjusted(0, -count * entry, 0, 0);
        QTRY_COMPARE(view->geometry(), grown);
    }
    QVERIFY(button(u"Entry 6"_s));
}

void tst_Gallery::popupCloses_data()
{
    QTest::addColumn<GalleryPopups::Kind>("kind");
    QTest::addColumn<QString>("how");
    const auto kinds = QMetaEnum::fromType<GalleryPopups::Kind>();
    for (int i = 0; i < kinds.keyCount(); ++i) {
        for (const QString &how : {u"Escape"_s, u"another window"_s, u"the opener dies"_s, u"another popup"_s}) {
            if (kinds.value(i) != GalleryPopups::ToolTip || how != "Escape"_L1)
                QTest::addRow("%s: %s", kinds.key(i), qPrintable(how)) << GalleryPopups::Kind(kinds.value(i)) << how;
        }
    }
}

void tst_Gallery::popupCloses()
{
    QFETCH(const GalleryPopups::Kind, kind);
    QFETCH(const QString, how);
    openPage(u"Popups"_s);
    const QPointer<QQuickItem> opener = item(u"anchor"_s);
    const QPointer<WPopupQuickView> view = showPopup(kind, Qt::UpArrow);
    QVERIFY(view);

    QWindow other;
    if (how == "Escape"_L1) {
        QTest::keyClick(view, Qt::Key_Escape);
    } else if (how == "the opener dies"_L1) {
        m_window->rootObject()->setProperty("currentPage", 0);
        QTRY_VERIFY(!opener);
    } else if (how == "another popup"_L1) {
        popups()->show(kind == GalleryPopups::Menu ? GalleryPopups::ToolTip : GalleryPopups::Menu, opener, Qt::UpArrow);
        QVERIFY(popups()->view() != view);
    } else {
        other.setGeometry(0, 0, 100, 100);
        other.show();
        other.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&other));
    }
    QTRY_VERIFY(!view);
    if (how != "another popup"_L1) {
        QVERIFY(!popups()->view());
        if (opener)
            QVERIFY(!opener->property("open").toBool());
    }
    if (how == "Escape"_L1)
        QTRY_VERIFY(m_window->isActive());
}

void tst_Gallery::popupReportsTheChoice()
{
    openPage(u"Popups"_s);
    QSignalSpy chosen(popups(), &GalleryPopups::chosen);
    QTest::mouseClick(m_window, Qt::LeftButton, {}, item(u"anchor"_s)->mapToScene({24, 24}).toPoint());
    const QPointer<WPopupQuickView> view = popups()->view();
    QVERIFY(view);
    QVERIFY(QTest::qWaitForWindowExposed(view));
    QTRY_VERIFY(view->isActive());
    QTest::keyClick(view, Qt::Key_Down);
    QTRY_VERIFY(button(u"Rename"_s)->hasActiveFocus());
    QTest::keyClick(view, Qt::Key_Return);
    QTRY_VERIFY(!view);
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen.first().first().toString(), u"Rename"_s);
    QCOMPARE(item(u"choice"_s)->property("text").toString(), u"Chosen: Rename"_s);
}

// Comes and goes with the pointer.
void tst_Gallery::toolTip()
{
    openPage(u"Popups"_s);
    QTest::mouseClick(m_window, Qt::LeftButton, {}, button(u"Tooltip"_s)->mapToScene({20, 16}).toPoint());
    QQuickItem *opener = item(u"anchor"_s);
    const QPoint over = opener->mapToScene({24, 24}).toPoint();
    QTest::mouseMove(m_window, over);
    QTRY_VERIFY(popups()->view() && popups()->view()->isVisible());
    const QPointer<WPopupQuickView> view = popups()->view();
    QCOMPARE(view->objectName(), u"GalleryToolTip"_s);
    QTest::mouseMove(m_window, over - QPoint(200, 100));
    QTRY_VERIFY(!view);
    QVERIFY(!opener->property("open").toBool());
}

void tst_Gallery::movies()
{
    openPage(u"Movies"_s);
    const auto state = [this](const QString &card) {
        return item(card)->findChild<QQuickItem *>(u"state"_s)->property("text").toString();
    };
    const auto movie = [this](const QString &card) {
        return item(card)->findChild<QQuickItem *>(u"movie"_s)->property("movie").value<QMovie *>();
    };
    for (const QString &card : {u"arrives"_s, u"fails"_s, u"replaced"_s})
        QCOMPARE(state(card), u"Waiting"_s);
    QTRY_COMPARE(state(u"arrives"_s), u"Movie: orbit"_s);
    QTRY_COMPARE(state(u"fails"_s), u"Fallback image"_s);
    QTRY_COMPARE(state(u"replaced"_s), u"Movie: wave"_s);

    QMovie *arrived = movie(u"arrives"_s);
    QVERIFY(arrived);
    QCOMPARE(arrived->state(), QMovie::Running);
    QSignalSpy frames(arrived, &QMovie::frameChanged);
    QTRY_COMPARE_GE(frames.size(), 3);
    QQuickItem *fallback = item(u"fails"_s)->findChild<QQuickItem *>(u"fallback"_s);
    QTRY_COMPARE(fallback->property("status").toInt(), 1); // Image.Ready
    QVERIFY(!movie(u"fails"_s));

    const QPointer<QMovie> wave = movie(u"replaced"_s);
    press(button(u"Fetch another"_s), Qt::Key_Space);
    QCOMPARE(movie(u"replaced"_s), wave.get()); // stays until the other is there
    QTRY_COMPARE_NE(movie(u"replaced"_s), wave.get());
    QTRY_VERIFY(!wave);
    QCOMPARE(state(u"replaced"_s), u"Movie: pulse"_s);
    QCOMPARE(movie(u"replaced"_s)->state(), QMovie::Running);

    press(button(u"Fetch again"_s), Qt::Key_Space);
    QCOMPARE(state(u"arrives"_s), u"Waiting"_s);
    QTRY_COMPARE(state(u"arrives"_s), u"Movie: orbit"_s);
    QTRY_COMPARE_NE(movie(u"arrives"_s), arrived);
}

void tst_Gallery::moviesFollowTheTheme()
{
    openPage(u"Movies"_s);
    QQuickItem *shown = item(u"arrives"_s)->findChild<QQuickItem *>(u"movie"_s);
    const auto background = [&] {
        const auto *movie = shown->property("movie").value<QMovie *>();
        return movie ? movie->currentImage().pixelColor(0, 0) : QColor();
    };
    auto *application = qobject_cast<GalleryApplication *>(qApp);
    const auto panel = [&] { return application->getColorSet(u"panel-tertiary-background"_s).normal; };
    QTRY_COMPARE(background(), panel());
    const QColor light = panel();
    application->setThemeMode(u"dark"_s);
    QCOMPARE_NE(panel(), light);
    QTRY_COMPARE(background(), panel());
}

void tst_Gallery::movieSource_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("animated");
    QTest::addColumn<int>("frames");
    for (const char *source : {"orbit", "wave", "pulse"}) {
        QTest::addRow("%s", source) << QString::fromLatin1(source) << true << 24;
        QTest::addRow("%s, still", source) << QString::fromLatin1(source) << false << 1;
    }
}

void tst_Gallery::movieSource()
{
    QFETCH(const QString, source);
    QFETCH(const bool, animated);
    QFETCH(const int, frames);
    GalleryMovieSource movies(std::chrono::milliseconds(0), animated, nullptr);
    QObject taker;
    QList<WMovie *> taken;
    connect(&movies, &IWMovieProviderSource::movieFetched, &taker, [&](WMovie *movie, const QString &of) {
        QCOMPARE(of, source);
        movie->setParent(&taker);
        taken.append(movie);
    });
    movies.fetch(source);
    QCOMPARE(taken.size(), 1);

    WMovie *movie = taken.first();
    QVERIFY(movie->isValid());
    QVERIFY(movie->jumpToFrame(0));
    QImage previous;
    int count = 0;
    do {
        QCOMPARE(movie->currentImage().size(), QSize(192, 192));
        QVERIFY(movie->currentImage() != previous);
        QVERIFY(!isOfOneColor(movie->currentImage().convertToFormat(QImage::Format_RGB32)));
        previous = movie->currentImage();
        ++count;
    } while (movie->jumpToNextFrame() && movie->currentFrameNumber() > 0);
    QCOMPARE(count, frames);
}

// What nobody takes is gone.
void tst_Gallery::movieSourceFails()
{
    GalleryMovieSource movies(std::chrono::milliseconds(0), true, nullptr);
    QSignalSpy fetched(&movies, &IWMovieProviderSource::movieFetched);
    QSignalSpy failed(&movies, &IWMovieProviderSource::movieFetchFailed);
    movies.fetch(u"nowhere"_s);
    QCOMPARE(fetched.size(), 0);
    QCOMPARE(failed.size(), 1);
    QCOMPARE(failed.first(), QVariantList({u"image://svg/%1/image"_s, u"nowhere"_s}));
    movies.fetch(u"wave"_s);
    QCOMPARE(fetched.size(), 1);
    QCOMPARE(failed.size(), 1);
    QVERIFY(movies.findChildren<WMovie *>().isEmpty());
}

int main(int argc, char **argv)
{
    TestApplication::isolateSettings();
    GalleryApplication application(argc, argv);
    qmlRegisterTypesAndRevisions<GalleryComponents, GalleryData, GalleryPopups>("Gallery", 1);
    tst_Gallery test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_gallery.moc"
