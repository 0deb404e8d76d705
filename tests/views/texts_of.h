#pragma once

#include <string>
#include <vector>

#include <QWidget>

#include "views/view.h"

namespace vantrix {

/// Everything that is to be read in `root`, in the order of its making: what assistive programs are told.
inline std::vector<std::string> textsOf(const QWidget& root) {
    std::vector<std::string> texts;
    for (const View* view : root.findChildren<View*>())
        if (view->isVisibleTo(&root) && !view->accessibleText().isEmpty())
            texts.push_back(view->accessibleText().toStdString());
    return texts;
}

} // namespace vantrix
