#include <cstdlib>
#include <cstring>

// This library answers for every address that no proxy is needed. It has the name and the functions
// of libproxy, which Qt Network calls and which loads thirty libraries on Debian 13, among them
// curl, two for encryption and one that runs JavaScript. Qt Quick needs Qt Network to be loaded,
// but this program does not reach the network and never calls it. The rules of ownership are those
// of proxy.h: the caller owns everything that get_proxies() returns, and frees it with free().

extern "C" {

struct px_proxy_factory {};

px_proxy_factory* px_proxy_factory_new() {
    static px_proxy_factory factory;
    return &factory;
}

char** px_proxy_factory_get_proxies(px_proxy_factory*, const char*) {
    auto** proxies = static_cast<char**>(std::calloc(2, sizeof(char*)));
    if (proxies) proxies[0] = strdup("direct://");
    return proxies;
}

void px_proxy_factory_free_proxies(char** proxies) {
    if (!proxies) return;
    for (char** proxy = proxies; *proxy; ++proxy) std::free(*proxy);
    std::free(proxies);
}

void px_proxy_factory_free(px_proxy_factory*) {}
}
