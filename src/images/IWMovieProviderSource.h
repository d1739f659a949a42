#pragma once

#include <LumakitQmlExport.h>

#include <QObject>
#include <QString>

class WMovie;

/// Fetches animated images by source for every WMovieProvider. A host implements it and returns it from
/// IWApplication::getMovieProviderSource().
class LUMAKITQML_EXPORT IWMovieProviderSource : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("WMovie.h")

public:
    ~IWMovieProviderSource() override;

    /// Starts fetching; ends in movieFetched() or movieFetchFailed(), at once or later.
    virtual void fetch(const QString &source) = 0;

Q_SIGNALS:
    /// The receiver that asked for `source` takes the movie over.
    void movieFetched(WMovie *movie, const QString &source);
    /// The image to show instead comes first; empty for none.
    void movieFetchFailed(const QString &fallbackSource, const QString &source);

protected:
    explicit IWMovieProviderSource(QObject *parent = nullptr);
};
