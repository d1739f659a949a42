#include <Logger.h>
#include <MetaDescription.h>
#include <TestCase.h>

using namespace Qt::StringLiterals;

class tst_Logger : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void records_data();
    void records();
    void noContext();
};

void tst_Logger::metaObject()
{
    const QMetaObject &meta = Logger::staticMetaObject;
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(MetaDescription::invokables(meta),
             (QStringList{u"void info(QString)"_s, u"void debug(QString)"_s, u"void error(QString)"_s}));
    QCOMPARE(MetaDescription::properties(meta), QStringList());
    QCOMPARE(MetaDescription::signalsOf(meta), QStringList());
    QCOMPARE(MetaDescription::slotsOf(meta), QStringList());
}

void tst_Logger::records_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("record");
    QTest::newRow("text") << u"Hello, world"_s << uR"(qml:  "Hello, world")"_s;
    QTest::newRow("empty") << u""_s << uR"(qml:  "")"_s;
    QTest::newRow("quotes") << uR"(a "b" \c)"_s << uR"(qml:  "a \"b\" \\c")"_s;
    QTest::newRow("lines") << u"a\nb"_s << uR"(qml:  "a\nb")"_s;
    QTest::newRow("place markers") << u"%1 %s"_s << uR"(qml:  "%1 %s")"_s;
}

void tst_Logger::records()
{
    QFETCH(const QString, text);
    QFETCH(const QString, record);
    const LogRecorder log;
    Logger logger;
    logger.info(text);
    logger.debug(text);
    logger.error(text);
    QCOMPARE(log.lines(),
             (QList<LogRecorder::Line>{{QtInfoMsg, record}, {QtDebugMsg, record}, {QtCriticalMsg, record}}));
}

// Where the library writes is not where the text comes from.
void tst_Logger::noContext()
{
    static QStringList contexts;
    contexts.clear();
    const QtMessageHandler previous =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &context, const QString &) {
            contexts << u"%1:%2:%3 %4"_s.arg(QLatin1StringView(context.file))
                            .arg(context.line)
                            .arg(QLatin1StringView(context.function), QLatin1StringView(context.category));
        });
    Logger logger;
    logger.info(u"a"_s);
    logger.debug(u"b"_s);
    logger.error(u"c"_s);
    qInstallMessageHandler(previous);
    QCOMPARE(contexts, QStringList(3, u":0: default"_s));
}

LUMAKIT_TEST_MAIN(tst_Logger)
#include "tst_logger.moc"
