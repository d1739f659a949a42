#include <TestCase.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <functional>
#include <numeric>
#include <span>

using namespace Qt::StringLiterals;

namespace {

const QSize WindowSize(1280, 840);
const QStringList Themes{u"default"_s, u"dark"_s, u"highcontrast"_s};
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
struct PictureName
{
    QString page;
    int screenful = 0;
    QString suffix;

    explicit PictureName(const QString &path)
    {
        static const QRegularExpression form(u"^([a-z]+)(?:-([1-9][0-9]*))?-([a-z]+)\\.png$"_s);
        const auto match = form.match(QFileInfo(path).fileName());
        page = match.captured(1);
        screenful = match.captured(2).isEmpty() ? 1 : match.captured(2).toInt();
        suffix = match.captured(3);
    }
};

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
    void picture_data() { addPictures(); }
    void picture();
    void themeShows_data();
    void themeShows();
    void nextScreenful_data();
    void nextScreenful();
    void rendersScaled();

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
    QString path(const QString &page, int screenful, const QString &suffix) const;

    QTemporaryDir m_folder;
    QTemporaryDir m_configuration;
    QStringList m_pictures;
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
            if (const PictureName name(picture); name.page == page)
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

void tst_Gallery::picture()
{
    QFETCH(const QString, path);
    const QImage image = readPicture(path);
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
        if (name.suffix != "default"_L1)
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
        if (QImageReader(picture).size() != WindowSize * 1.5)
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

LUMAKIT_PLAIN_TEST_MAIN(tst_Gallery)
#include "tst_gallery.moc"
