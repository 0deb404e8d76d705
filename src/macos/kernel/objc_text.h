#pragma once

#include <string>
#include <string_view>

#import <Foundation/Foundation.h>

namespace vantrix {

/// UTF-8; empty for nil and for text that cannot be converted.
inline std::string textOf(NSString* text) {
    const char* bytes = text.UTF8String;
    return bytes ? bytes : std::string();
}

/// Never nil: empty for bytes that are not UTF-8.
inline NSString* nativeText(std::string_view text) {
    NSString* native = [[NSString alloc] initWithBytes:text.data() length:text.size() encoding:NSUTF8StringEncoding];
    return native ? native : @"";
}

} // namespace vantrix
