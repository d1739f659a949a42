#include "Measurement.h"

#include <WSvgRenderer.h>

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <QTemporaryDir>

#include <private/qsvgtinydocument_p.h>

#include <cmath>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

// A gear: as many path segments as an icon has.
QByteArray gear(int teeth)
{
    QByteArray path;
    for (int tooth = 0; tooth < teeth; ++tooth) {
        const double angle = tooth * 6.283185307 / teeth;
        const auto point = [&](char command, double radius, double offset) {
            path += command + QByteArray::number(12 + radius * std::cos(angle + offset), 'f', 2) + ' '
                + QByteArray::number(12 + radius * std::sin(angle + offset), 'f', 2);
        };
        point(tooth == 0 ? 'M' : 'L', 10, 0.0);
        point('L', 10, 3.0 / teeth);
        point('L', 8, 3.6 / teeth);
        point('L', 8, 5.6 / teeth);
    }
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 24 24\"><path fill-rule=\"evenodd\" d=\"" + path
        + "Z M12 8a4 4 0 1 0 0 8a4 4 0 1 0 0-8Z\"/></svg>\n";
}

constexpr QSize IconSize(24, 24);

QPixmap drawNode(QSvgNode *node, const QColor &color)
{
    QPixmap pixmap(IconSize);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    QSvgExtraStates states;
    node->draw(&painter, states);
    return pixmap;
}

void expectInk(const QPixmap &pixmap)
{
    if (qAlpha(pixmap.toImage().pixel(4, 12)) == 0)
        qFatal("nothing was drawn");
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    const QTemporaryDir folder;
    QStringList paths;
    for (int i = 0; i < 2; ++i) {
        paths.append(folder.filePath(u"gear%1.svg"_s.arg(i)));
        QFile file(paths.last());
        if (!file.open(QIODevice::WriteOnly) || file.write(gear(8 + i)) <= 0)
            qFatal("cannot write the icons");
    }
    Measurement::printHead(u"Icons, 24 x 24"_s);

    constexpr int Calls = 500;
    WSvgRenderer renderer(paths[0]);
    const std::unique_ptr<QSvgTinyDocument> document(QSvgTinyDocument::load(paths[0]));
    QSvgNode *node = document->renderers().first();
    expectInk(renderer.renderPixmap(IconSize, 1.0, Qt::red));
    expectInk(drawNode(node, Qt::red));
    Measurement::compare(u"icon, file parsed"_s,
                         {u"renderPixmap"_s,
                          [&] {
                              for (int i = 0; i < Calls; ++i)
                                  renderer.renderPixmap(IconSize, 1.0, QColor::fromRgb(i & 255, 0, 0));
                          }},
                         {u"the node drawn into a pixmap"_s,
                          [&] {
                              for (int i = 0; i < Calls; ++i)
                                  drawNode(node, QColor::fromRgb(i & 255, 0, 0));
                          }},
                         1.05, Calls, 31);

    Measurement::compare(u"icon, cold"_s,
                         {u"load and renderPixmap"_s,
                          [&] {
                              for (int i = 0; i < Calls; ++i) {
                                  renderer.load(paths[i & 1]);
                                  renderer.renderPixmap(IconSize, 1.0, Qt::red);
                              }
                          }},
                         {u"parse and draw by Qt Svg"_s,
                          [&] {
                              for (int i = 0; i < Calls; ++i) {
                                  QSvgRenderer svg(paths[i & 1]);
                                  QPixmap pixmap(IconSize);
                                  pixmap.fill(Qt::transparent);
                                  QPainter painter(&pixmap);
                                  svg.render(&painter);
                              }
                          }},
                         1.1, Calls, 31);
    return EXIT_SUCCESS;
}
