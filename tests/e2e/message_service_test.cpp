// A message class that the host's system has registered is used for every message, with its six arguments.

#include "e2e/driver/message_class.h"
#include "e2e/driver/shown_message.h"
#include "e2e/host_test.h"

namespace tavrin::e2e {
namespace {

using testing::ElementsAre;

class MessageServiceTest : public HostTest {
  protected:
    void SetUp() override {
        host->Call([&] { service = std::make_unique<MessageClass>(); });
    }
    void TearDown() override {
        CloseEverything();
        host->Call([&] { service.reset(); });
        HostTest::TearDown();
    }

    bool AwaitMessages(std::size_t count) {
        return WaitUntil([&] { return host->Call([&] { return service->Messages().size(); }) == count; });
    }

    std::unique_ptr<MessageClass> service;
};

TEST_F(MessageServiceTest, GetsARefusalWithItsSixArguments) {
    Click(OpenRateList(FrozenMarch).Control("cmdAction(2)"));
    ASSERT_TRUE(AwaitMessages(1));
    host->Ui().Settle();
    EXPECT_THAT(service->Messages(),
                ElementsAre(MessageArguments{
                    "Acest curs a fost validat !\r\nNu puteti modifica un curs deja validat !", 16, 0,
                    "Curs Valutar", 0, 0}));
    EXPECT_FALSE(ShownMessage::Find());
    EXPECT_TRUE(AwaitFocus("Grid"));
}

TEST_F(MessageServiceTest, ItsAnswerDecides) {
    service->answer = IDYES;
    const Window list = OpenRateList();
    const auto before = host->Rows("SELECT [Data] FROM [Curs Valutar]").size();
    Click(list.Control("cmdAction(2)"));
    ASSERT_TRUE(AwaitMessages(1));
    host->Ui().Settle();
    EXPECT_EQ(service->Messages()[0].buttons, 4);
    EXPECT_EQ(service->Messages()[0].icon, 32);
    EXPECT_EQ(host->Rows("SELECT [Data] FROM [Curs Valutar]").size(), before - 1);
}

TEST_F(MessageServiceTest, IsCalledByItsFirstMethodWhereTheNameIsUnknown) {
    service->knowsName = false;
    Click(OpenRateList(FrozenMarch).Control("cmdAction(2)"));
    ASSERT_TRUE(AwaitMessages(1));
    EXPECT_EQ(service->Messages()[0].icon, 16);
}

TEST_F(MessageServiceTest, IsCreatedAnewByEachWindow) {
    OpenRateList();
    EXPECT_EQ(service->created, 1);
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(AwaitClosed("CursValutar"));
    Click(AwaitForm("Utilitati").Control("cmdAction(3)"));
    AwaitForm("CursValutar");
    host->Ui().Settle();
    EXPECT_EQ(service->created, 2);
}

}  // namespace
}  // namespace tavrin::e2e
