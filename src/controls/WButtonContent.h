#pragma once

#include <QtQuick/private/qquicktext_p.h>

class WButtonTemplate;

/// The text of the WButtonTemplate that it is the content of.
class WButtonContent : public QQuickText
{
    Q_OBJECT

public:
    explicit WButtonContent(QQuickItem *parent = nullptr);

    void showLooks(const WButtonTemplate &button);

protected:
    void componentComplete() override;
};
