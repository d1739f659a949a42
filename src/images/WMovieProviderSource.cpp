#include "WMovieProviderSource.h"

WMovieProviderSource::WMovieProviderSource(QObject *parent)
    : IWMovieProviderSource(parent)
{
}

void WMovieProviderSource::fetch(const QString &) { }
