#include "linux/services/linux_application_service.h"

#include <future>

#include <QDBusConnectionInterface>
#include <QDBusPendingCall>

#include "linux/services/private_bus.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;

const QString name = QString::fromLatin1(applicationId);

struct LinuxApplicationServiceTest : ::testing::Test {
    bool isRefused(const QString& method, const QVariantList& arguments) {
        auto call =
            QDBusMessage::createMethodCall(name, u"/app/vantrix/Vantrix"_s, u"org.freedesktop.Application"_s, method);
        call.setArguments(arguments);
        const auto answer = other.bus().asyncCall(call);
        return spinUntil([&answer] { return answer.isFinished(); }) && answer.isError();
    }

    /// From another thread, as the service answers from its event loop.
    bool takes(const std::string& request) {
        auto answer = std::async(std::launch::async, [&] { return askApplicationOn(bus.address(), request); });
        spinUntil([&answer] { return answer.wait_for(std::chrono::seconds(0)) == std::future_status::ready; });
        return answer.get();
    }

    PrivateBus bus;
    BusConnection other{bus.address()};
    LinuxApplicationService service{bus.link()};
};

TEST_F(LinuxApplicationServiceTest, HearsWhatDesktopsAskAndRefusesTheRest) {
    ASSERT_TRUE(spinUntil([&] { return other.bus().interface()->isServiceRegistered(name); }));
    std::string heard;
    service.received = [&heard](const std::string& request) { heard = request; };
    for (const char* request : {"show-popover", "show-settings", "show-settings alerts", "quit"}) {
        EXPECT_TRUE(takes(request));
        EXPECT_EQ(heard, request);
    }
    const QVariantMap none;
    const QVariantMap another{{u"app.vantrix.Session"_s, u"/run/user/1/vantrix-1"_s}};
    const auto with = [](const QString& token) { return QVariantMap{{u"activation-token"_s, token}}; };
    const struct {
        QString method;
        QVariantList arguments;
        std::string request; ///< empty: an error
    } cases[] = {
        {u"Open"_s, {QStringList(u"file:///etc"_s), with(u"unused"_s)}, "show-popover"},
        {u"ActivateAction"_s, {u"settings"_s, QVariantList(), with(u"token"_s)}, "show-settings"},
        {u"ActivateAction"_s, {u"settings"_s, QVariantList{u"sounds"_s}, none}, ""},
        {u"ActivateAction"_s, {u"settings"_s, QVariantList{u"alerts"_s, u"alerts"_s}, none}, ""},
        {u"ActivateAction"_s, {u"quit"_s, QVariantList{1}, none}, ""},
        {u"ActivateAction"_s, {u"explode"_s, QVariantList(), none}, ""},
        {u"ActivateAction"_s, {u"quit"_s}, ""},
        {u"Explode"_s, {}, ""},
        {u"Activate"_s, {another}, ""},
    };
    for (const auto& c : cases) {
        heard.clear();
        EXPECT_EQ(isRefused(c.method, c.arguments), c.request.empty()) << c.request;
        EXPECT_EQ(heard, c.request);
    }
    EXPECT_EQ(qgetenv("XDG_ACTIVATION_TOKEN"), "") << "of use under Wayland alone";
}

TEST_F(LinuxApplicationServiceTest, KeepsItsNameAndComesBackWithTheBus) {
    ASSERT_TRUE(spinUntil([&] { return takes("show-popover"); }));
    using Interface = QDBusConnectionInterface;
    EXPECT_NE(other.bus().interface()->registerService(name, Interface::ReplaceExistingService).value(),
              Interface::ServiceRegistered);
    bus.kill();
    EXPECT_FALSE(takes("show-popover"));
    bus.start();
    EXPECT_TRUE(spinUntil([&] { return takes("show-popover"); }));
    bus.freeze();
    EXPECT_FALSE(takes("show-popover")) << "but answers";
}

} // namespace
} // namespace vantrix
