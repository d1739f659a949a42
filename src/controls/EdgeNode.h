#pragma once

#include "DevicePixels.h"

#include <QSGRendererInterface>

#include <QtQuick/private/qsgadaptationlayer_p.h>

#include <type_traits>

/// What fills an item, with its edges on whole pixels of the device. An item that is moved, or an item around it,
/// paints nothing anew: so this node looks in each frame where it is.
class EdgeNode : public QSGNode
{
public:
    /// For updatePaintNode(): `paint` is that of the base, which makes a `Filling` of the size of the item out of the
    /// former one, or nothing. Without `fills` it is left as it is.
    template<typename Filling, typename Paint>
    static QSGNode *paint(const QQuickItem *item, QSGNode *oldNode, const Paint &paint, bool fills = true)
    {
        const double ratio = DevicePixels::ratioOf(item);
        auto *edges = dynamic_cast<EdgeNode *>(oldNode);
        if (!fills || !isNeeded(item->window(), ratio)) {
            delete edges;
            return paint(edges ? nullptr : oldNode);
        }
        if (!edges)
            delete oldNode;
        QSGNode *filling = paint(edges ? edges->firstChild() : nullptr);
        if (!filling) { // nothing to be seen
            delete edges;
            return nullptr;
        }
        if (!edges) {
            edges = new EdgeNode(fit<Filling>);
            edges->appendChildNode(filling);
        }
        edges->m_size = item->size();
        edges->m_ratio = ratio;
        edges->m_shown = QRectF(QPointF(), item->size());
        return edges;
    }

    void preprocess() override
    {
        QTransform toScene;
        for (const QSGNode *node = parent(); node && node->type() != RootNodeType; node = node->parent()) {
            if (node->type() == TransformNodeType)
                toScene *= static_cast<const QSGTransformNode *>(node)->matrix().toTransform();
        }
        QRectF rect(QPointF(), m_size);
        if (toScene.type() <= QTransform::TxTranslate) { // what is turned or scaled has no edge on a pixel
            const QPointF place(toScene.dx(), toScene.dy());
            rect = DevicePixels::rounded(rect.translated(place), m_ratio).translated(-place);
        }
        if (rect == m_shown)
            return;
        m_shown = rect;
        m_fit(firstChild(), rect);
    }

private:
    using Fit = void (*)(QSGNode *, const QRectF &);

    explicit EdgeNode(Fit function)
        : m_fit(function)
    {
        setFlag(UsePreprocess);
    }

    // The software back end puts edges on pixels by itself.
    static bool isNeeded(const QQuickWindow *window, double ratio)
    {
        return !DevicePixels::isWhole(ratio)
            && window->rendererInterface()->graphicsApi() != QSGRendererInterface::Software;
    }

    template<typename Filling> static void fit(QSGNode *node, const QRectF &rect)
    {
        auto *filling = static_cast<Filling *>(node);
        if constexpr (std::is_same_v<Filling, QSGInternalImageNode>) {
            filling->setTargetRect(rect);
            filling->setInnerTargetRect(rect);
        } else {
            filling->setRect(rect);
        }
        filling->update();
    }

    Fit m_fit;
    QSizeF m_size;
    QRectF m_shown;
    double m_ratio = 1;
};
