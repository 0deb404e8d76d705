#pragma once

// As on Apple silicon, where BOOL is the language's own truth value.
typedef bool BOOL;
#define YES __objc_yes
#define NO __objc_no
#define nil nullptr
#define Nil nullptr
