#include <TestCase.h>
#include <WSvgRenderer.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int Side = 24;

QStringList iconNames()
{
    QStringList names = QDir(u":/Resources"_s).entryList({u"*.svg"_s}, QDir::Files, QDir::Name);
    for (QString &name : names)
        name.chop(4);
    return names;
}

QString readSource(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList sources(const QString &folder, const QString &pattern)
{
    QStringList paths;
    const QDir directory(QStringLiteral(GALLERY_SOURCES) + folder);
    for (const QString &file : directory.entryList({pattern}, QDir::Files, QDir::Name))
        paths.append(directory.filePath(file));
    return paths;
}

/// The string literals of the matches' first group.
QSet<QString> literals(const QString &source, const QString &pattern)
{
    static const QRegularExpression literal(u"\"([^\"\n]+)\""_s);
    QSet<QString> found;
    const QRegularExpression expression(pattern);
    for (auto match = expression.globalMatch(source); match.hasNext();) {
        const QString value = match.next().captured(1);
        for (auto text = literal.globalMatch(value); text.hasNext();)
            found.insert(text.next().captured(1));
    }
    return found;
}

/// Every pixel is the colour at some opacity; what is off is listed.
QStringList foreignPixels(const QImage &image, const QColor &color)
{
    QStringList foreign;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = reinterpret_cast<const QRgb *>(image.constScanLine(y))[x];
            const auto isOff = [alpha = qAlpha(pixel)](int channel, int full) {
                return std::abs(channel - full * alpha / 255) > 1; // premultiplied
            };
            if (isOff(qRed(pixel), color.red()) || isOff(qGreen(pixel), color.green())
                || isOff(qBlue(pixel), color.blue()))
                foreign.append(u"%1, %2: #%3"_s.arg(x).arg(y).arg(pixel, 8, 16, QChar(u'0')));
        }
    }
    return foreign;
}

} // namespace

class tst_Icons : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void count();
    void icon_data();
    void icon();
    void pixelCheckFindsForeignColors();
    void buttonIcons_data();
    void buttonIcons();
    void iconsOfPages();
    void resourcesOfSources();

private:
    static QImage render(const WSvgRenderer &renderer, const QColor &color)
    {
        return renderer.renderPixmap({Side, Side}, 1.0, color)
            .toImage()
            .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }
};

void tst_Icons::count()
{
    QCOMPARE_GE(iconNames().size(), 60);
    QCOMPARE(iconNames().size(), sources(u"/icons"_s, u"*.svg"_s).size());
}

void tst_Icons::icon_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : iconNames())
        QTest::newRow(qPrintable(name)) << name;
}

void tst_Icons::icon()
{
    QFETCH(const QString, name);
    LogRecorder recorder;
    WSvgRenderer renderer(nullptr);
    QVERIFY(renderer.updateIconResource(name));
    const QColor reddish(230, 30, 90);
    const QColor bluish(20, 110, 200);
    const QImage one = render(renderer, reddish);
    const QImage other = render(renderer, bluish);
    QCOMPARE(recorder.lines(), QList<LogRecorder::Line>());
    QVERIFY(!renderer.isAnimated());
    QCOMPARE(one.size(), QSize(Side, Side));
    QCOMPARE(foreignPixels(one, reddish), QStringList());
    QCOMPARE(foreignPixels(other, bluish), QStringList());

    int solid = 0;
    QStringList differences;
    QStringList outside;
    for (int y = 0; y < Side; ++y) {
        for (int x = 0; x < Side; ++x) {
            const int alpha = qAlpha(one.pixel(x, y));
            solid += alpha > 127;
            if (alpha != qAlpha(other.pixel(x, y)))
                differences.append(u"%1, %2"_s.arg(x).arg(y));
            if (alpha > 0 && (x == 0 || y == 0 || x == Side - 1 || y == Side - 1))
                outside.append(u"%1, %2"_s.arg(x).arg(y));
        }
    }
    QCOMPARE(differences, QStringList());
    QCOMPARE(outside, QStringList());
    QCOMPARE_GE(solid, 10);
}

// What a file with colours of its own gives.
void tst_Icons::pixelCheckFindsForeignColors()
{
    const MemoryResources files({{u"/Resources/own-color.svg"_s,
                                  "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 24 24'>"
                                  "<rect fill='#0f0' x='4' y='4' width='2' height='3'/></svg>"}});
    WSvgRenderer renderer(nullptr);
    QVERIFY(renderer.updateIconResource(u"own-color"_s));
    QCOMPARE(foreignPixels(render(renderer, Qt::red), Qt::red).size(), 6);
}

void tst_Icons::buttonIcons_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"settings-bold", "settings-filled", "favorite-bold", "favorite-filled", "attachment-bold",
                             "emoji-happy-bold", "link-bold", "pen-bold"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_Icons::buttonIcons()
{
    QFETCH(const QString, name);
    QVERIFY(iconNames().contains(name));
}

void tst_Icons::iconsOfPages()
{
    QSet<QString> used;
    for (const QString &path : sources(u"/qml"_s, u"*.qml"_s)) {
        const QString source = readSource(path);
        QVERIFY2(!source.isEmpty(), qPrintable(path));
        used |= literals(source, u"\\bGalleryIcon\\s*\\{[^{}]*?(?<![.\\w])name:([^\n;]*)"_s);
        used |= literals(source, u"\\b(?:iconName|svgName|\\w+IconName|\\w+SvgName):([^\n;]*)"_s);
        used |= literals(source, u"image://svg/[^\n]*(\\.arg\\(\"[^\"\n]*\"\\)) *\n"_s);
    }
    QVERIFY(used.contains(u"search"_s));
    const QStringList names = iconNames();
    used.subtract(QSet<QString>(names.begin(), names.end()));
    QCOMPARE(used.values(), QStringList());
}

void tst_Icons::resourcesOfSources()
{
    static const QRegularExpression resource(u":/Resources/[\\w.-]+"_s);
    QStringList used;
    for (const QString &path : sources(QString(), u"*.cpp"_s)) {
        const QString source = readSource(path);
        for (auto match = resource.globalMatch(source); match.hasNext();)
            used.append(match.next().captured());
    }
    QCOMPARE_GT(used.size(), 0);
    used.removeIf([](const QString &path) { return QFile::exists(path); });
    QCOMPARE(used, QStringList());
}

LUMAKIT_TEST_MAIN(tst_Icons)
#include "tst_icons.moc"
