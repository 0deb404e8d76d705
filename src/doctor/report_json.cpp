#include <cmath>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

#include "doctor/report.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;

double tenths(double value) {
    return std::round(value * 10.0) / 10.0;
}

void putUnlessEmpty(QJsonObject& object, const QString& key, const std::string& text) {
    if (!text.empty())
        object[key] = QString::fromStdString(text);
}

template<typename Number>
void putPresent(QJsonObject& object, const QString& key, const std::optional<Number>& number) {
    if (number)
        object[key] = static_cast<double>(*number);
}

QJsonArray toJson(const std::vector<DoctorRow>& rows) {
    QJsonArray array;
    for (const DoctorRow& row : rows) {
        const SourceDiagnosis& diagnosis = row.diagnosis;
        QJsonObject object{{u"name"_s, QString::fromStdString(diagnosis.name)},
                           {u"state"_s, QString::fromLatin1(wordOf(diagnosis.state))}};
        putUnlessEmpty(object, u"source"_s, diagnosis.source);
        putUnlessEmpty(object, u"value"_s, diagnosis.value);
        putUnlessEmpty(object, u"reason"_s, diagnosis.reason);
        if (row.microseconds)
            object[u"microseconds"_s] = tenths(*row.microseconds);
        array.append(object);
    }
    return array;
}

QJsonObject toJson(const DoctorInstance& instance) {
    QJsonObject object{{u"pid"_s, instance.pid}};
    putUnlessEmpty(object, u"statusItem"_s, instance.statusItem);
    if (!instance.statistics)
        return object;
    const ProcessStatistics& statistics = *instance.statistics;
    object[u"uptimeSeconds"_s] = statistics.uptime;
    object[u"userSeconds"_s] = statistics.userTime;
    object[u"systemSeconds"_s] = statistics.systemTime;
    object[u"threads"_s] = statistics.threads;
    putPresent(object, u"residentBytes"_s, statistics.residentBytes);
    putPresent(object, u"ownBytes"_s, statistics.ownBytes);
    putPresent(object, u"wakeUps"_s, statistics.wakeUps);
    return object;
}

} // namespace

std::string jsonReport(const DoctorReport& report) {
    QJsonObject system;
    for (const auto& [label, text] : report.system)
        system[QString::fromStdString(label).toLower()] = QString::fromStdString(text);
    QJsonObject object{{u"system"_s, system},
                       {u"readings"_s, toJson(report.readings)},
                       {u"services"_s, toJson(report.services)},
                       {u"passMicroseconds"_s, tenths(passMicroseconds(report))}};
    if (report.instance)
        object[u"instance"_s] = toJson(*report.instance);
    return QJsonDocument(object).toJson().toStdString();
}

} // namespace vantrix
