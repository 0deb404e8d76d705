#include "platform/thread_priority.h"

#include <pthread/qos.h>

namespace vantrix {

void lowerThreadPriority() {
    pthread_set_qos_class_self_np(QOS_CLASS_UTILITY, 0);
}

} // namespace vantrix
