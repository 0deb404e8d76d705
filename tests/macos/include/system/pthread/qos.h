#pragma once

extern "C" {

typedef unsigned int qos_class_t;
enum { QOS_CLASS_UTILITY = 0x11 };

int pthread_set_qos_class_self_np(qos_class_t qualityOfService, int relativePriority);

} // extern "C"
