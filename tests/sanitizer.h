// Whether the tests are built with the address sanitizer: g++ and clang++ tell it in different ways.
#pragma once

#if defined(__SANITIZE_ADDRESS__)
#define QUILLON_ADDRESS_SANITIZER 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define QUILLON_ADDRESS_SANITIZER 1
#endif
#endif
