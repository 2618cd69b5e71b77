// Whether this is built with AddressSanitizer, as both compilers tell it.
#pragma once

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define STRAKE_ADDRESS_SANITIZED
#endif
#elif defined(__SANITIZE_ADDRESS__)
#define STRAKE_ADDRESS_SANITIZED
#endif
