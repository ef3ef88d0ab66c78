// Telling failures apart.
#include "desktop/network/load_failure.hpp"

#include <curl/curl.h>

namespace desktop::network {

std::string_view descriptionOf(LoadFailure failure) {
    switch (failure) {
    case LoadFailure::unknown:
        break;
    case LoadFailure::cancelled:
        return "已取消";
    case LoadFailure::badUrl:
        return "错误的 URL";
    case LoadFailure::timedOut:
        return "请求超时。";
    case LoadFailure::unsupportedUrl:
        return "不支持的 URL";
    case LoadFailure::cannotFindHost:
        return "未能找到使用指定主机名的服务器。";
    case LoadFailure::cannotConnectToHost:
        return "未能连接到服务器。";
    case LoadFailure::networkConnectionLost:
        return "网络连接已中断。";
    case LoadFailure::tooManyRedirects:
        return "HTTP 重定向次数过多";
    case LoadFailure::badServerResponse:
        return "服务器的响应有误。";
    case LoadFailure::dataLengthExceedsMaximum:
        return "资源超过最大大小";
    case LoadFailure::secureConnectionFailed:
        return "发生了 SSL 错误，无法建立与该服务器的安全连接。";
    case LoadFailure::serverCertificateUntrusted:
        return "此服务器的证书无效。";
    }
    return "未知错误";
}

LoadFailure failureFromCurl(int result) {
    switch (result) {
    case CURLE_URL_MALFORMAT:
        return LoadFailure::badUrl;
    case CURLE_UNSUPPORTED_PROTOCOL:
        return LoadFailure::unsupportedUrl;
    case CURLE_COULDNT_RESOLVE_HOST:
        return LoadFailure::cannotFindHost;
    case CURLE_COULDNT_CONNECT:
        return LoadFailure::cannotConnectToHost;
    case CURLE_OPERATION_TIMEDOUT:
        return LoadFailure::timedOut;
    case CURLE_PARTIAL_FILE:
    case CURLE_GOT_NOTHING:
    case CURLE_SEND_ERROR:
    case CURLE_RECV_ERROR:
        return LoadFailure::networkConnectionLost;
    case CURLE_TOO_MANY_REDIRECTS:
        return LoadFailure::tooManyRedirects;
    case CURLE_WEIRD_SERVER_REPLY:
    case CURLE_BAD_CONTENT_ENCODING:
        return LoadFailure::badServerResponse;
    case CURLE_SSL_CONNECT_ERROR:
        return LoadFailure::secureConnectionFailed;
    case CURLE_PEER_FAILED_VERIFICATION:
        return LoadFailure::serverCertificateUntrusted;
    case CURLE_WRITE_ERROR:
        return LoadFailure::dataLengthExceedsMaximum;
    default:
        return LoadFailure::unknown;
    }
}

} // namespace desktop::network
