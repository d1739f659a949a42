#include <TestCase.h>
#include <WColorSet.h>

#include <QMetaProperty>

using namespace Qt::StringLiterals;

class tst_WColorSet : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void memoryResources();
};

void tst_WColorSet::metaObject()
{
    const QMetaObject &meta = WColorSet::staticMetaObject;
    QStringList names;
    for (int i = 0; i < meta.propertyCount(); ++i)
        names << QLatin1StringView(meta.property(i).name());
    QCOMPARE(names, (QStringList{u"name"_s, u"normal"_s, u"hovered"_s, u"pressed"_s, u"disabled"_s, u"focused"_s,
                                 u"checked"_s, u"isValid"_s}));
}

void tst_WColorSet::memoryResources()
{
    {
        MemoryResources resources({{u"/Themes/a.json"_s, "one"}, {u"/Themes/b.json"_s, "two"}, {u"/c"_s, "three"}});
        QFile file(u":/Themes/b.json"_s);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), "two");
        QVERIFY(QFile::exists(u":/c"_s));
        QVERIFY(QFile::exists(u":/Themes/a.json"_s));
    }
    QVERIFY(!QFile::exists(u":/c"_s));
}

LUMAKIT_TEST_MAIN(tst_WColorSet)
#include "tst_wcolorset.moc"
