// Why a load failed, in the platform's numbers.
#pragma once

#include <string_view>

namespace desktop::network {

/// The codes of the platform's URL errors (NSURLErrorDomain), as documented.
enum class LoadFailure : long {
    unknown = -1,
    cancelled = -999,
    badUrl = -1000,
    timedOut = -1001,
    unsupportedUrl = -1002,
    cannotFindHost = -1003,
    cannotConnectToHost = -1004,
    networkConnectionLost = -1005,
    tooManyRedirects = -1007,
    badServerResponse = -1011,
    dataLengthExceedsMaximum = -1103,
    secureConnectionFailed = -1200,
    serverCertificateUntrusted = -1202,
};

/// What a person reads about it, in the language of the desktop's phone.
std::string_view descriptionOf(LoadFailure failure);

/// The failure that a result of libcurl (a CURLcode) means.
LoadFailure failureFromCurl(int result);

} // namespace desktop::network
