// Making keys and certificates.
#include "desktop/services/authority.hpp"

#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rand.h>
#include <openssl/x509v3.h>

#include <stdexcept>

namespace desktop::services {
namespace {

constexpr long validSeconds = 30L * 24 * 3600;
constexpr long clockSkew = 3600;
constexpr long version3 = 2;

template <class T>
T* made(T* result) {
    if (result == nullptr) {
        throw std::runtime_error("cannot make the certificates of the local services");
    }
    return result;
}

using Key = std::unique_ptr<EVP_PKEY, void (*)(EVP_PKEY*)>;
using Certificate = std::unique_ptr<X509, void (*)(X509*)>;

Key freshKey() { return {made(EVP_EC_gen("P-256")), &EVP_PKEY_free}; }

void extend(X509* certificate, X509* issuer, int kind, const std::string& value) {
    X509V3_CTX context;
    X509V3_set_ctx(&context, issuer, certificate, nullptr, nullptr, 0);
    X509_EXTENSION* extension = made(X509V3_EXT_conf_nid(nullptr, &context, kind, value.c_str()));
    X509_add_ext(certificate, extension, -1);
    X509_EXTENSION_free(extension);
}

void setRandomSerial(X509* certificate) {
    std::uint64_t serial = 0;
    RAND_bytes(reinterpret_cast<unsigned char*>(&serial), sizeof serial);
    ASN1_INTEGER_set_uint64(X509_get_serialNumber(certificate), serial);
}

/// Unsigned, and without an issuer.
Certificate blank(EVP_PKEY* key, const std::string& name) {
    Certificate certificate(made(X509_new()), &X509_free);
    X509_set_version(certificate.get(), version3);
    setRandomSerial(certificate.get());
    X509_gmtime_adj(X509_getm_notBefore(certificate.get()), -clockSkew);
    X509_gmtime_adj(X509_getm_notAfter(certificate.get()), validSeconds);
    X509_set_pubkey(certificate.get(), key);
    X509_NAME_add_entry_by_txt(X509_get_subject_name(certificate.get()), "CN", MBSTRING_UTF8,
                               reinterpret_cast<const unsigned char*>(name.c_str()), -1, -1, 0);
    return certificate;
}

template <class Writer>
std::string pem(Writer writer) {
    const std::unique_ptr<BIO, int (*)(BIO*)> memory(made(BIO_new(BIO_s_mem())), &BIO_free);
    writer(memory.get());
    char* text = nullptr;
    const long length = BIO_get_mem_data(memory.get(), &text);
    return {text, static_cast<std::size_t>(length)};
}

std::string pem(X509* certificate) {
    return pem([certificate](BIO* out) { PEM_write_bio_X509(out, certificate); });
}

} // namespace

Authority::Authority()
    : key_(freshKey()), certificate_(blank(key_.get(), "Wentra desktop services")) {
    X509* own = certificate_.get();
    X509_set_issuer_name(own, X509_get_subject_name(own));
    extend(own, own, NID_basic_constraints, "critical,CA:TRUE,pathlen:0");
    extend(own, own, NID_key_usage, "critical,keyCertSign");
    extend(own, own, NID_subject_key_identifier, "hash");
    X509_sign(own, key_.get(), EVP_sha256());
    certificatePem_ = pem(own);
}

Authority::~Authority() = default;

Identity Authority::identityFor(const std::string& hostName) const {
    const Key key = freshKey();
    const Certificate server = blank(key.get(), hostName);
    X509_set_issuer_name(server.get(), X509_get_subject_name(certificate_.get()));
    extend(server.get(), certificate_.get(), NID_basic_constraints, "critical,CA:FALSE");
    extend(server.get(), certificate_.get(), NID_ext_key_usage, "serverAuth");
    extend(server.get(), certificate_.get(), NID_subject_alt_name, "DNS:" + hostName);
    extend(server.get(), certificate_.get(), NID_authority_key_identifier, "keyid");
    X509_sign(server.get(), key_.get(), EVP_sha256());
    return {pem(server.get()), pem([&key](BIO* out) {
                PEM_write_bio_PrivateKey(out, key.get(), nullptr, nullptr, 0, nullptr, nullptr);
            })};
}

} // namespace desktop::services
