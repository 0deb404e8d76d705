#include "popover/cards/network_card.h"

#include <optional>

#include <QVBoxLayout>

#include "menubar/preferences.h"
#include "monitor/readings.h"
#include "popover/cards/row_column.h"
#include "popover/charts/stat_row.h"
#include "popover/rate_column.h"
#include "popover/reading_text.h"
#include "support/localization.h"
#include "support/text_format.h"
#include "views/link_button.h"

namespace vantrix {
namespace {

constexpr double idleLine = 100'000.0; // bytes per second: less than this is an idle line

const char* symbolOf(NetworkInfo::Kind kind) {
    switch (kind) {
    case NetworkInfo::Kind::wifi:
        return "wifi";
    case NetworkInfo::Kind::ethernet:
        return "cable.connector";
    case NetworkInfo::Kind::offline:
        return "wifi.slash";
    case NetworkInfo::Kind::other:
        break;
    }
    return "network";
}

void showRow(StatRow* row, const std::optional<QString>& value) {
    row->showIfKnown(value, [](const QString& text) { return text; });
}

std::optional<QString> signalText(const NetworkInfo& info) {
    const auto quality = signalQuality(info.rssi);
    if (!quality)
        return std::nullopt;
    const auto pattern = QString::fromStdString(formatted(localized("%lld dBm · %@"), {*info.rssi}));
    return QString(pattern).replace(QStringLiteral("%@"), localizedText(*quality));
}

std::optional<QString> signalToNoiseText(const NetworkInfo& info) {
    if (!info.rssi || !info.noise)
        return std::nullopt;
    return localizedText("%@ dB", QString::number(static_cast<long long>(*info.rssi) - *info.noise));
}

std::optional<QString> linkSpeedText(const NetworkInfo& info) {
    if (!info.linkSpeedMbps)
        return std::nullopt;
    return localizedText("%@ Mbps", QString::fromStdString(roundedInteger(*info.linkSpeedMbps)));
}

std::optional<QString> interfaceText(const NetworkInfo& info) {
    if (!info.interface)
        return std::nullopt;
    const QString name = QString::fromStdString(*info.interface);
    if (!info.displayName)
        return name;
    return QStringLiteral("%1 (%2)").arg(QString::fromStdString(*info.displayName), name);
}

std::optional<QString> shown(const std::optional<std::string>& text) {
    return text ? std::optional(QString::fromStdString(*text)) : std::nullopt;
}

} // namespace

NetworkCard::NetworkCard(const CardContext& context)
    : Card(context.theme, localizedText("Network"), "network"), defaults_(context.defaults),
      download_(new RateColumn(context.theme, {localizedText("Download"), localizedText("Download history"),
                                               "arrow.down", &ThemeColors::accent, idleLine})),
      upload_(new RateColumn(context.theme, {localizedText("Upload"), localizedText("Upload history"), "arrow.up",
                                             &ThemeColors::green, idleLine})),
      connection_(new QWidget), name_(new StatRow(context.theme, localizedText("Network"))),
      nameWithheld_(new LinkButton(context.theme, localizedText("Network name unavailable"),
                                   localizedText("Allow location access to show the network name"))),
      signal_(new StatRow(context.theme, localizedText("Signal"))),
      signalToNoise_(new StatRow(context.theme, localizedText("Signal-to-noise"))),
      linkSpeed_(new StatRow(context.theme, localizedText("Link speed"))),
      interface_(new StatRow(context.theme, localizedText("Interface"))),
      address_(new StatRow(context.theme, localizedText("IP address"))) {
    signal_->setSymbol("wifi");
    connection_->setLayout(columnOf({name_, nameWithheld_, signal_, signalToNoise_, linkSpeed_, interface_, address_}));
    connect(nameWithheld_, &QPushButton::clicked, this, context.requestLocationAccess);
    content().addLayout(sideBySide(download_, upload_));
    content().addWidget(connection_);
}

void NetworkCard::showReadings(const Readings& readings) {
    const std::string port = storedText(defaults_, preference_key::networkInterface);
    const NetworkSample& network = readings.network;
    const auto known = [&network](double rate) { return network.isThere ? std::optional(rate) : std::nullopt; };
    const RateText text = rateTextIn(units(defaults_).network);
    download_->setRate(known(network.download), readings.downloadHistory, readings.interval, text);
    upload_->setRate(known(network.upload), readings.uploadHistory, readings.interval, text);
    const QString name = QString::fromStdString(port);
    setSubtitle(network.isThere ? name : localizedText("%@ is not available", name));
    // What goes over another port says nothing about the chosen one.
    const bool isOfPort = port.empty() || readings.networkInfo.interface == port;
    setSymbol(isOfPort ? symbolOf(readings.networkInfo.kind) : "network");
    showConnection(isOfPort ? readings.networkInfo : NetworkInfo());
}

void NetworkCard::showConnection(const NetworkInfo& info) {
    const bool withheld = info.kind == NetworkInfo::Kind::wifi && !info.ssid && info.ssidHiddenByPrivacy;
    showRow(name_, shown(info.ssid));
    nameWithheld_->setVisible(withheld);
    showRow(signal_, signalText(info));
    showRow(signalToNoise_, signalToNoiseText(info));
    showRow(linkSpeed_, linkSpeedText(info));
    showRow(interface_, interfaceText(info));
    showRow(address_, shown(info.localIP));
    connection_->setVisible(info.ssid || withheld || info.rssi || info.linkSpeedMbps || info.interface || info.localIP);
}

} // namespace vantrix
