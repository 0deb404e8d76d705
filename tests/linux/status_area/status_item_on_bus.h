#pragma once

#include <gtest/gtest.h>

#include "fakes/fake_appearance.h"
#include "fakes/fake_defaults.h"
#include "linux/status_area/fake_status_host.h"
#include "linux/status_area/linux_status_item.h"
#include "linux/status_area/notifier_types.h"

namespace vantrix {

/// A row of two modules.
inline StatusContent rowOf(int cpu, int ram = 50) {
    const auto item = [](MenuBarModule module, const char* label, int percent) {
        MenuBarItem made;
        made.label = label;
        made.lines = {std::to_string(percent) + "%"};
        made.fraction = percent / 100.0;
        made.reference = "100%";
        made.module = module;
        return made;
    };
    StatusContent content;
    content.items = {item(MenuBarModule::cpu, "CPU", cpu), item(MenuBarModule::memory, "RAM", ram)};
    content.accessibilityLabel = accessibilityLabel(content.items);
    return content;
}

/// The status item on a bus of its own, with a host that says what it hears.
class StatusItemOnBus : public ::testing::Test {
  protected:
    using Kind = LinuxStatusItem::Kind;
    using Item = FakeStatusHost::Item;

    void start() {
        StatusItem::Handlers handlers{.clicked =
                                          [this](const StatusClick& click) {
                                              clicks.push_back(click.button);
                                              modules.push_back(click.module);
                                          },
                                      .menu = [this] { return entries; },
                                      .details = [this](auto module) { return module ? QString() : details; },
                                      .menuWillOpen = [this] { ++menusOpened; },
                                      .appeared = [this] { wasThere = item->isShown(); }};
        item = std::make_unique<LinuxStatusItem>(std::move(handlers), defaults, appearance, surroundings);
        item->show(rowOf(12));
    }

    /// Starts on a host of that kind and waits for `count` items.
    std::vector<Item> startOn(const NotifierHost& host, std::size_t count = 1) {
        layout = host;
        start();
        EXPECT_TRUE(awaitItems(count));
        std::vector<Item> items = this->host.items;
        items.resize(count);
        return items;
    }

    bool awaitItems(std::size_t count) {
        return spinUntil([&] { return host.items.size() >= count; });
    }

    bool awaitKind(Kind kind) {
        return spinUntil([&] { return item->kind() == kind; });
    }

    bool awaitSignals(QStringView name, qsizetype count) {
        return spinUntil([&] { return host.count(name) >= count; });
    }

    static NotifierPixmaps icon(const QVariantMap& properties) {
        return qdbus_cast<NotifierPixmaps>(properties.value(QStringLiteral("IconPixmap")));
    }

    PrivateBus bus;
    FakeStatusHost host{bus.address()};
    fakes::FakeDefaults defaults;
    fakes::FakeAppearance appearance;
    NotifierHost layout; ///< of every process
    StatusSurroundings surroundings{.bus = bus.link(),
                                    .stripDelay = std::chrono::milliseconds(30),
                                    .hostOfProcess = [this](uint) { return layout; }};
    std::vector<StatusMenuEntry> entries;
    QString details = QStringLiteral("details"); ///< of the whole row
    std::vector<StatusClick::Button> clicks;
    std::vector<std::optional<MenuBarModule>> modules; ///< of the clicks
    int menusOpened = 0;
    bool wasThere = false; ///< when it said so
    std::unique_ptr<LinuxStatusItem> item;
};

} // namespace vantrix
