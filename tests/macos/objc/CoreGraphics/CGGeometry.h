#pragma once

#include <cstdint>

typedef double CGFloat;

struct CGPoint {
    CGFloat x;
    CGFloat y;
};

struct CGSize {
    CGFloat width;
    CGFloat height;
};

struct CGRect {
    CGPoint origin;
    CGSize size;
};

typedef enum CGRectEdge : std::uint32_t { CGRectMinXEdge, CGRectMinYEdge, CGRectMaxXEdge, CGRectMaxYEdge } CGRectEdge;

struct CGAffineTransform {
    CGFloat a, b, c, d;
    CGFloat tx, ty;
};
