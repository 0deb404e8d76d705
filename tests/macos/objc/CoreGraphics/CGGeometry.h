#pragma once

#include <cstdint>

typedef double CGFloat;

struct CGPoint {
    CGFloat x, y;
};

struct CGSize {
    CGFloat width, height;
};

struct CGRect {
    CGPoint origin;
    CGSize size;
};

typedef enum CGRectEdge : std::uint32_t { CGRectMinXEdge, CGRectMinYEdge, CGRectMaxXEdge, CGRectMaxYEdge } CGRectEdge;
