#pragma once

#include <string>
#include <string_view>
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

/// The first view in `root` whose text begins with `text`; null where there is none.
inline View* viewOf(const QWidget& root, std::string_view text) {
    for (View* view : root.findChildren<View*>())
        if (view->accessibleText().toStdString().starts_with(text))
            return view;
    return nullptr;
}

} // namespace vantrix
