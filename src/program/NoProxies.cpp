#include <cstdlib>
#include <cstring>

// A library that says of every address that no proxy is needed for it. It has the name and the
// functions of libproxy, which Qt Network asks and which brings thirty libraries on Debian 13:
// curl, two that encrypt, one that runs JavaScript. Qt Quick needs Qt Network to be there; this
// program never calls it, as it does not reach the network. What the functions owe to whoever calls
// them is from proxy.h: all that get_proxies() returns is the caller's, to be freed with free().

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
