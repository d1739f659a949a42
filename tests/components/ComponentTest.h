#pragma once

#include <TestCase.h>

#include <QQuickItem>
#include <QQuickView>

#include <memory>

/// The base of the components' tests: shows components in a real window, in a host with the gallery's themes and icons.
class ComponentTest : public TestCase
{
    Q_OBJECT

protected:
    void prepare() override;
    void tidy() override;

    /// Shows the QML in an active window and returns its root; null with a message when it does not load. The text
    /// needs no imports: QtQuick, its Controls, Templates as T and Layouts, Corvane, LumakitQml and the folder of the
    /// components are there. The window has the root's size, at least 400 x 300.
    QQuickItem *show(const QByteArray &qml);
    /// What show() has loaded; null without.
    QQuickItem *root() const;
    QQuickWindow *window() const;

    /// The child with that object name, however deep and also of what is not an item.
    template<typename T = QQuickItem> T *find(const QString &objectName) const
    {
        return root() ? root()->findChild<T *>(objectName) : nullptr;
    }

    void click(QQuickItem *item, Qt::MouseButton button = Qt::LeftButton) const;
    void click(QQuickItem *item, const QPointF &position, Qt::MouseButton button = Qt::LeftButton) const;
    void moveMouseTo(QQuickItem *item) const;
    /// Moves the cursor out of what is shown.
    void moveMouseAway() const;
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;

    static TestApplication *application();

private:
    std::unique_ptr<QQuickView> m_view;
};
