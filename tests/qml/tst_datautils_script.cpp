#include "Script.h"

#include <TestCase.h>

#include <limits>

using namespace Qt::StringLiterals;

class tst_DataUtils_Script : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isLibrary() { QVERIFY(m_script.isLibrary(u"numDigits"_s)); }

    void numDigits_data()
    {
        QTest::addColumn<double>("number");
        QTest::addColumn<int>("digits");
        QTest::newRow("zero") << 0.0 << 1;
        QTest::newRow("-120") << -120.0 << 3;
        qint64 power = 1;
        for (int digits = 1; digits <= 10; ++digits, power *= 10) {
            QTest::addRow("%lld", power) << double(power) << digits;
            QTest::addRow("-%lld", power) << -double(power) << digits;
            if (digits > 1) {
                QTest::addRow("%lld", power - 1) << double(power - 1) << digits - 1;
                QTest::addRow("-%lld", power - 1) << -double(power - 1) << digits - 1;
            }
        }
        QTest::newRow("largest") << double(std::numeric_limits<qint32>::max()) << 10;
        QTest::newRow("smallest") << double(std::numeric_limits<qint32>::min()) << 10;
        // Of larger numbers the lower 32 bits count.
        QTest::newRow("2^32") << 4294967296.0 << 1;
        QTest::newRow("2^32 + 123") << 4294967419.0 << 3;
    }

    void numDigits()
    {
        QFETCH(const double, number);
        QFETCH(const int, digits);
        QCOMPARE(m_script.evaluate(u"DataUtils.numDigits(number)"_s, {{u"number"_s, number}}).toDouble(), digits);
    }

    void timeElapsed_data()
    {
        QTest::addColumn<double>("milliseconds");
        QTest::addColumn<int>("hours");
        QTest::addColumn<int>("minutes");
        QTest::addColumn<int>("seconds");
        QTest::newRow("nothing") << 0.0 << 0 << 0 << 0;
        QTest::newRow("less than a second") << 999.0 << 0 << 0 << 0;
        QTest::newRow("a second") << 1000.0 << 0 << 0 << 1;
        QTest::newRow("almost a minute") << 59999.0 << 0 << 0 << 59;
        QTest::newRow("a minute") << 60000.0 << 0 << 1 << 0;
        QTest::newRow("almost an hour") << 3599999.0 << 0 << 59 << 59;
        QTest::newRow("an hour") << 3600000.0 << 1 << 0 << 0;
        QTest::newRow("almost a day") << 86399999.0 << 23 << 59 << 59;
        QTest::newRow("a day") << 86400000.0 << 0 << 0 << 0;
        QTest::newRow("a day and one of each") << 90061000.0 << 1 << 1 << 1;
        QTest::newRow("years") << 1000 * 86400000.0 + 45296789 << 12 << 34 << 56;
    }

    void timeElapsed()
    {
        QFETCH(const double, milliseconds);
        QFETCH(const int, hours);
        QFETCH(const int, minutes);
        QFETCH(const int, seconds);
        const QString expected = uR"({"hours":%1,"minutes":%2,"seconds":%3})"_s.arg(hours).arg(minutes).arg(seconds);
        const QVariantMap times{{u"from"_s, 1234567.0}, {u"to"_s, 1234567.0 + milliseconds}};
        const QString call = u"JSON.stringify(DataUtils.timeElapsedBetween(%1))"_s;
        QCOMPARE(m_script.evaluate(call.arg("from, to"_L1), times), QVariant(expected));
        QCOMPARE(m_script.evaluate(call.arg("to, from"_L1), times), QVariant(expected));
        QCOMPARE(m_script.evaluate(call.arg("new Date(from), new Date(to)"_L1), times), QVariant(expected));
    }

private:
    Script m_script{u"DataUtils"_s};
};

LUMAKIT_TEST_MAIN(tst_DataUtils_Script)
#include "tst_datautils_script.moc"
