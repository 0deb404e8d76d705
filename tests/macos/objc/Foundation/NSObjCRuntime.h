#pragma once

#include <Availability.h>
#include <objc/objc.h>

typedef long NSInteger;
typedef unsigned long NSUInteger;

#define FOUNDATION_EXPORT extern "C"
#define NS_ASSUME_NONNULL_BEGIN _Pragma("clang assume_nonnull begin")
#define NS_ASSUME_NONNULL_END _Pragma("clang assume_nonnull end")
#define NS_ENUM(type, name)                                                                                            \
    enum __attribute__((enum_extensibility(open))) name : type name;                                                   \
    enum name : type
#define NS_CLOSED_ENUM(type, name)                                                                                     \
    enum __attribute__((enum_extensibility(closed))) name : type name;                                                 \
    enum name : type
// In C++ the flags of a set are numbers, so that they can be combined.
#define NS_OPTIONS(type, name)                                                                                         \
    type name;                                                                                                         \
    enum __attribute__((flag_enum, enum_extensibility(open))) : name
#define NS_TYPED_EXTENSIBLE_ENUM
#define NS_TYPED_ENUM
#define NS_UNAVAILABLE __attribute__((unavailable))
#define NS_DESIGNATED_INITIALIZER __attribute__((objc_designated_initializer))
#define NS_REQUIRES_SUPER __attribute__((objc_requires_super))
#define NS_RETURNS_INNER_POINTER __attribute__((objc_returns_inner_pointer))
#define NS_NOESCAPE __attribute__((noescape))
#define NS_SWIFT_NAME(name)
#define NS_REFINED_FOR_SWIFT
#define NS_SWIFT_UI_ACTOR
#define NS_SWIFT_SENDABLE
#define NS_NONATOMIC_IOSONLY
#define NS_REQUIRES_NIL_TERMINATION __attribute__((sentinel(0, 1)))
#define NS_FORMAT_FUNCTION(text, first) __attribute__((format(__NSString__, text, first)))
