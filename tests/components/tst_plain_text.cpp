#include <ComponentTest.h>
#include <WQmlEngine.h>

#include <QDir>
#include <QMetaProperty>
#include <QQmlComponent>
#include <QTcpServer>
#include <QTcpSocket>

using namespace Qt::StringLiterals;

// Markup in a text from outside is shown, not obeyed: no component fetches the image that it names.
class tst_PlainText : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void markupCanFetch();
    void noRequest_data();
    void noRequest();

private:
    QString markup() const;
    void settle(QQuickView &view);

    std::unique_ptr<QTcpServer> m_server;
    int m_requests = 0;
};

void tst_PlainText::init()
{
    prepare(); // what markup does to names of colour sets and icons is logged, and of no interest here
    // A new one each time: a request that comes late belongs to the test before.
    m_server = std::make_unique<QTcpServer>();
    QVERIFY(m_server->listen(QHostAddress::LocalHost));
    m_requests = 0;
    connect(m_server.get(), &QTcpServer::newConnection, this, [this] {
        ++m_requests;
        m_server->nextPendingConnection()->abort();
    });
}

// The proof that the test below can fail.
void tst_PlainText::markupCanFetch()
{
    const LogRecorder log;
    auto *text = show("Text { textFormat: Text.RichText }");
    QVERIFY(text);
    text->setProperty("text", markup());
    QTRY_VERIFY(m_requests > 0);
}

void tst_PlainText::noRequest_data()
{
    QTest::addColumn<QString>("file");
    for (const QString &file : QDir(u":/Qml"_s).entryList({u"*.qml"_s}, QDir::Files, QDir::Name)) {
        if (file != "FontConstants.qml"_L1) // a singleton
            QTest::addRow("%s", qPrintable(file)) << file;
    }
}

void tst_PlainText::noRequest()
{
    QFETCH(const QString, file);
    const LogRecorder log;
    QQuickView view(application()->getQmlEngine(), nullptr);
    view.resize(400, 300);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));

    QQmlComponent component(view.engine(), QUrl("qrc:/Qml/"_L1 + file));
    QQuickItem target;
    QVariantMap required;
    if (file == "LKFocusManagerProxy.qml"_L1)
        required = {{u"target"_s, QVariant::fromValue(&target)}};
    const std::unique_ptr<QObject> object(component.createWithInitialProperties(required));
    QVERIFY2(object, qPrintable(component.errorString()));
    if (auto *item = qobject_cast<QQuickItem *>(object.get())) {
        item->setParentItem(view.contentItem());
        item->setSize({300, 200});
    } else if (object->metaObject()->indexOfProperty("parent") >= 0) {
        object->setProperty("parent", QVariant::fromValue(view.contentItem())); // a popup
    }
    const QMetaObject *meta = object->metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        if (property.isWritable() && property.metaType() == QMetaType::fromType<QString>()
            && QLatin1StringView(property.name()) != "objectName"_L1)
            property.write(object.get(), markup());
    }
    if (meta->indexOfProperty("opened") >= 0)
        object->setProperty("visible", true);
    settle(view);
    QCOMPARE(m_requests, 0);
}

QString tst_PlainText::markup() const
{
    return u"<b>bold</b> <img src=\"http://127.0.0.1:%1/picture.png\"> &amp;"_s.arg(m_server->serverPort());
}

void tst_PlainText::settle(QQuickView &view)
{
    for (int frame = 0; frame < 3; ++frame) {
        view.grabWindow();
        QCoreApplication::processEvents();
    }
    // A connection that was begun has been accepted when one of our own, begun later, is.
    const int before = m_requests;
    QTcpSocket own;
    own.connectToHost(QHostAddress::LocalHost, m_server->serverPort());
    QTRY_VERIFY(m_requests > before);
    --m_requests;
}

LUMAKIT_TEST_MAIN(tst_PlainText)
#include "tst_plain_text.moc"
