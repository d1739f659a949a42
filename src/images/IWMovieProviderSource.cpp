#include "IWMovieProviderSource.h"

IWMovieProviderSource::IWMovieProviderSource(QObject *parent)
    : QObject(parent)
{
}

IWMovieProviderSource::~IWMovieProviderSource() = default;
