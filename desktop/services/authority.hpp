// The certificate authority of this process's own services.
#pragma once

#include <memory>
#include <string>

struct evp_pkey_st;
struct x509_st;

namespace desktop::services {

/// A server's certificate and its private key, both in PEM.
struct Identity {
    std::string certificate;
    std::string key;
};

/// An authority that signs certificates for host names. It is made anew for each process, its key
/// is known to nobody else, and only this process trusts it. Throws `std::runtime_error` when the
/// cryptographic library fails.
class Authority {
public:
    Authority();
    ~Authority();
    Authority(const Authority&) = delete;
    Authority& operator=(const Authority&) = delete;

    /// Its own certificate in PEM: what those who trust it need.
    [[nodiscard]] const std::string& certificate() const { return certificatePem_; }
    /// A fresh identity for the server of that name.
    [[nodiscard]] Identity identityFor(const std::string& hostName) const;

private:
    std::unique_ptr<evp_pkey_st, void (*)(evp_pkey_st*)> key_;
    std::unique_ptr<x509_st, void (*)(x509_st*)> certificate_;
    std::string certificatePem_;
};

} // namespace desktop::services
