#include "BenchHost.h"
#include "FirstFrame.h"
#include "Measurement.h"

#include <WPopupQuickView.h>
#include <WQmlEngine.h>

#include <QQuickItem>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

// Where the popup points at, on the screen.
constexpr QRect Opener(200, 200, 80, 32);

// One kind of window: how to make it, and how to show it.
struct Kind
{
    std::function<QQuickView *()> make;
    std::function<void(QQuickView *)> show;
};

class Shower
{
public:
    explicit Shower(const Kind &kind)
        : m_kind(kind)
    {
    }

    void remove()
    {
        m_view.reset();
        settle();
    }

    void hide()
    {
        if (!m_view)
            makeAndShow();
        m_view->hide();
        settle();
    }

    void makeAndShow()
    {
        m_view.reset(m_kind.make());
        if (!m_view || !m_view->rootObject())
            qFatal("the window was not made");
        show();
    }

    void show()
    {
        showFirstFrame(m_view.get(), [this] { m_kind.show(m_view.get()); });
    }

private:
    static void settle()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }

    Kind m_kind;
    std::unique_ptr<QQuickView> m_view;
};

void compareKinds(const QString &subject, const Kind &ours, const Kind &peer)
{
    constexpr double Limit = 1.1;
    constexpr int Repetitions = 61;
    Shower our(ours);
    Shower their(peer);
    const QString name = u"a bare QQuickView"_s;
    // Only one is there, or shown, at a time.
    const auto removeBoth = [&] {
        our.remove();
        their.remove();
    };
    const auto hideBoth = [&] {
        our.hide();
        their.hide();
    };
    Measurement::compare(subject + u", new"_s, {u"WQmlEngine"_s, [&] { our.makeAndShow(); }, removeBoth},
                         {name, [&] { their.makeAndShow(); }, removeBoth}, Limit, 1, Repetitions);
    Measurement::compare(subject + u", again"_s, {u"WQmlEngine"_s, [&] { our.show(); }, hideBoth},
                         {name, [&] { their.show(); }, hideBoth}, Limit, 1, Repetitions);
}

QQuickView *makeBareView(WQmlEngine *engine, const QString &source)
{
    auto view = std::make_unique<QQuickView>(engine, nullptr);
    view->setResizeMode(QQuickView::SizeRootObjectToView);
    view->setSource(QUrl(u"qrc:/Qml/"_s + source));
    return view.release();
}

} // namespace

int main(int argc, char **argv)
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software); // the GUI thread paints, and is what is measured
    const BenchSurroundings surroundings;
    BenchHost application(argc, argv);
    WQmlEngine *engine = application.getQmlEngine();

    // What opens the popups; the application is active while it is.
    QQuickView opener(engine, nullptr);
    opener.resize(400, 300);
    showFirstFrame(&opener);
    opener.requestActivate();
    while (!WApplication::isInFocus())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);

    Measurement::printHead(u"From request to first frame"_s);
    compareKinds(
        u"window"_s,
        {[] { return WQmlEngine::createQmlWindow(u"BenchWindow.qml"_s).data(); },
         [](QQuickView *view) { view->show(); }},
        {[engine] { return makeBareView(engine, u"BenchWindow.qml"_s); }, [](QQuickView *view) { view->show(); }});
    compareKinds(u"popup"_s,
                 {[&opener]() -> QQuickView * { return WQmlEngine::createQmlPopup(u"BenchPopup.qml"_s, &opener); },
                  [](QQuickView *view) { static_cast<WPopupQuickView *>(view)->showAtRect(Opener, Qt::UpArrow); }},
                 {[engine] {
                      QQuickView *view = makeBareView(engine, u"BenchPopup.qml"_s);
                      view->setFlags(Qt::Popup | Qt::FramelessWindowHint);
                      view->setColor(Qt::transparent);
                      return view;
                  },
                  [](QQuickView *view) {
                      view->setPosition(Opener.center().x() - view->width() / 2, Opener.bottom() + 1);
                      view->show();
                  }});
    return EXIT_SUCCESS;
}
