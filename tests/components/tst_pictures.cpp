#include "SampleRenderer.h"

#include <LKQmlRegister.h>
#include <TestCase.h>

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

constexpr int Tolerance = 3; // of 255: processors round blended colours differently

int difference(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

// Where two pictures differ it is red, elsewhere pale; null where they are the same.
QImage compare(const QImage &picture, const QImage &expected)
{
    QImage result(picture.size().expandedTo(expected.size()), QImage::Format_RGB32);
    result.fill(Qt::red);
    bool differs = picture.size() != expected.size();
    for (int y = 0; y < std::min(picture.height(), expected.height()); ++y) {
        for (int x = 0; x < std::min(picture.width(), expected.width()); ++x) {
            const QRgb rgb = picture.pixel(x, y);
            if (difference(rgb, expected.pixel(x, y)) > Tolerance)
                differs = true;
            else
                result.setPixelColor(x, y, QColor(rgb).lighter(150));
        }
    }
    return differs ? result : QImage();
}

} // namespace

// Each component looks as in its picture, in each theme. Where one does not, the new picture and the difference are
// written for a person to look at; `./dev pictures --accept` takes the new ones over.
class tst_Pictures : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void noPictureWithoutSample();
    void comparison();
    void looksAsBefore_data();
    void looksAsBefore();
};

void tst_Pictures::initTestCase()
{
    LKQmlRegister::registerLKQmlDataTypes();
    LKQmlRegister::registerLKQmlComponents();
    QDir(QStringLiteral(DIFFERENCES)).removeRecursively();
}

void tst_Pictures::noPictureWithoutSample()
{
    QStringList orphans;
    for (const QString &file : QDir(QStringLiteral(PICTURES)).entryList({u"*.png"_s})) {
        if (!SampleRenderer::names().contains(file.section(u'-', 0, 0)))
            orphans << file;
    }
    QCOMPARE(orphans, QStringList());
}

// The comparison can fail: one pixel, or one more row, is a difference; rounding is none.
void tst_Pictures::comparison()
{
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(QColor(100, 100, 100));
    QImage other = picture;
    other.setPixelColor(3, 3, QColor(100 + Tolerance, 100, 100));
    QVERIFY(compare(picture, other).isNull());
    other.setPixelColor(3, 3, QColor(100, 100, 101 + Tolerance));
    QCOMPARE(compare(picture, other).pixelColor(3, 3), QColor(Qt::red));
    QVERIFY(!compare(picture, picture.copy(0, 0, 8, 9)).isNull());
}

void tst_Pictures::looksAsBefore_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("themeMode");
    for (const QString &name : SampleRenderer::names()) {
        for (const QString &mode : {u"default"_s, u"dark"_s, u"highcontrast"_s})
            QTest::addRow("%s, %s", qPrintable(name), qPrintable(mode)) << name << mode;
    }
}

void tst_Pictures::looksAsBefore()
{
    QFETCH(const QString, name);
    QFETCH(const QString, themeMode);
    SampleRenderer::Look look;
    look.themeMode = themeMode;
    QString error;
    const QImage picture = SampleRenderer::render(name, look, &error);
    QVERIFY2(!picture.isNull(), qPrintable(error));

    const QString file = u"/%1-%2.png"_s.arg(name, themeMode);
    const QImage result = compare(picture, QImage(QStringLiteral(PICTURES) + file).convertToFormat(picture.format()));
    if (result.isNull())
        return;
    const QString folder = QStringLiteral(DIFFERENCES);
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(picture.save(folder + file));
    QVERIFY(result.save(folder + u"/%1-%2-difference.png"_s.arg(name, themeMode)));
    QFAIL(qPrintable(u"see %1%2 and its difference"_s.arg(folder, file)));
}

int main(int argc, char **argv)
{
    SampleRenderer::useSoftware();
    TestApplication::isolateSettings();
    TestApplication application(argc, argv);
    tst_Pictures test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_pictures.moc"
