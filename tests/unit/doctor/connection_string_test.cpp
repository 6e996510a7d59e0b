#include "doctor/core/connection_string.h"

#include <gtest/gtest.h>

namespace tavrin::doctor {
namespace {

struct Shown {
    const char* connection;
    const char* shown;
};

class ConnectionStrings : public testing::TestWithParam<Shown> {};

TEST_P(ConnectionStrings, AreShownWithoutTheirPasswords) {
    EXPECT_EQ(WithoutPasswords(GetParam().connection), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    Quoting, ConnectionStrings,
    testing::Values(Shown{"", ""}, Shown{"Data Source=srv;User ID=ana", "Data Source=srv;User ID=ana"},
                    Shown{"User ID=ana;Password=geheim", "User ID=ana;Password=***"},
                    Shown{"PWD=geheim;UID=ana", "PWD=***;UID=ana"},
                    Shown{" pwd = geheim ; UID=ana", " pwd = ***; UID=ana"},
                    Shown{"Password=ge=heim;UID=ana", "Password=***;UID=ana"},
                    Shown{"Password='ge;heim';UID=ana", "Password=***;UID=ana"},
                    Shown{R"(Password="ge;""heim";UID=ana)", "Password=***;UID=ana"},
                    Shown{"Password='ge''he;im';UID=ana", "Password=***;UID=ana"},
                    Shown{"Pwd={ge;heim}};x};UID=ana", "Pwd=***;UID=ana"},
                    Shown{"Password='geheim;UID=ana", "Password=***"},
                    Shown{"Password=;UID=ana", "Password=***;UID=ana"},
                    Shown{"Pass\tword=geheim", "Pass\tword=***"},
                    Shown{"Jet OLEDB:Database Password=geheim;x=1", "Jet OLEDB:Database Password=***;x=1"},
                    Shown{"User Password=a;New Password=b", "User Password=***;New Password=***"},
                    Shown{R"(Extended Properties="DRIVER=SQL Server;PWD=geheim;UID=ana";x=1)",
                          R"(Extended Properties="DRIVER=SQL Server;PWD=***;UID=ana";x=1)"},
                    Shown{"Extended Properties='PWD=\"ge;heim\"';x=1", "Extended Properties='PWD=***';x=1"},
                    Shown{"Data Source='srv;PWD=geheim", "Data Source=***"},
                    Shown{";;Password=geheim;;", ";;Password=***;;"}, Shown{"Password", "Password"},
                    Shown{"=geheim;Password=x", "=geheim;Password=***"}));

TEST(ConnectionStringSecrets, AreTakenOutOfWhatAProviderSays) {
    EXPECT_EQ(WithoutPasswordsOf("UID=ana;PWD=geheim", "Login failed for ana with geheim, geheim"),
              "Login failed for ana with ***, ***");
    EXPECT_EQ(WithoutPasswordsOf("PWD='ge;heim'", "cannot use ge;heim"), "cannot use ***");
    EXPECT_EQ(WithoutPasswordsOf("UID=ana;PWD=", "Login failed"), "Login failed");
}

}  // namespace
}  // namespace tavrin::doctor
