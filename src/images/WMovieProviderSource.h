#pragma once

#include "IWMovieProviderSource.h"

/// The source of an application that has no animated images: no movie ever arrives.
class LUMAKITQML_EXPORT WMovieProviderSource : public IWMovieProviderSource
{
    Q_OBJECT

public:
    explicit WMovieProviderSource(QObject *parent = nullptr);

    /// Does nothing.
    void fetch(const QString &source) override;
};
