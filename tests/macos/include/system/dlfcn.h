#pragma once

#define RTLD_NOW 2

extern "C" {

void* dlopen(const char* path, int mode) __asm__("simulated_dlopen");
void* dlsym(void* handle, const char* name) __asm__("simulated_dlsym");
int dlclose(void* handle) __asm__("simulated_dlclose");

} // extern "C"
