// What of a connection string is shown, and what is taken out of others' words.
#include <gtest/gtest.h>

#include "doctor/core/connection_secrets.h"

namespace tavrin::doctor {
namespace {

struct Given {
    const char* connection;
    const char* shown;
};

class ConnectionStrings : public testing::TestWithParam<Given> {};

TEST_P(ConnectionStrings, AreShownWithoutTheirSecrets) {
    EXPECT_EQ(ShownConnection(GetParam().connection), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    Harmless, ConnectionStrings,
    testing::Values(
        Given{"", ""}, Given{";; ;", ""}, Given{"Data Source=srv;User ID=ana", "Data Source=srv;User ID=ana"},
        Given{"Provider = MSOLEDBSQL ; Data Source = srv ; Initial Catalog = Firma",
              "Provider=MSOLEDBSQL;Data Source=srv;Initial Catalog=Firma"},
        Given{"Driver={SQL Server};Server=srv,1433;UID=ana", "Driver={SQL Server};Server=srv,1433;UID=ana"},
        Given{"Trusted_Connection=yes;Integrated Security=SSPI;Encrypt=no;TrustServerCertificate=yes",
              "Trusted_Connection=yes;Integrated Security=SSPI;Encrypt=no;TrustServerCertificate=yes"},
        Given{"Connect Timeout=5;DATABASE=a", "Connect Timeout=5;DATABASE=a"}));

INSTANTIATE_TEST_SUITE_P(Quoting, ConnectionStrings,
                         testing::Values(Given{"User ID=ana;Password=geheim", "User ID=ana;Password=***"},
                                         Given{"PWD=geheim;UID=ana", "PWD=***;UID=ana"},
                                         Given{" pwd = geheim ; UID=ana", "pwd=***;UID=ana"},
                                         Given{"Password=ge=heim;UID=ana", "Password=***;UID=ana"},
                                         Given{"Password='ge;heim';UID=ana", "Password=***;UID=ana"},
                                         Given{R"(Password="ge;""heim";UID=ana)", "Password=***;UID=ana"},
                                         Given{"Password='ge''he;im';UID=ana", "Password=***;UID=ana"},
                                         Given{"Pwd={ge;heim}};x};UID=ana", "Pwd=***;UID=ana"},
                                         Given{"Password='geheim;UID=ana", "Password=***"},
                                         Given{"Password='ge'heim;UID=ana", "Password=***;UID=ana"},
                                         Given{"Password=;UID=ana", "Password=***;UID=ana"},
                                         Given{"Pass\tword=geheim", "Pass\tword=***"},
                                         Given{";;Password=geheim;;", "Password=***"}));

INSTANTIATE_TEST_SUITE_P(
    Secrets, ConnectionStrings,
    testing::Values(Given{"Access Token=geheim;UID=ana", "Access Token=***;UID=ana"},
                    Given{"AuthToken=geheim", "AuthToken=***"}, Given{"Anything=geheim", "Anything=***"},
                    Given{"Jet OLEDB:Database Password=geheim;Mode=1",
                          "Jet OLEDB:Database Password=***;Mode=1"},
                    Given{"User Password='a';New Password=b", "User Password=***;New Password=***"},
                    Given{"geheim", "***"}, Given{"geheim;UID=ana", "***;UID=ana"},
                    Given{"UID=ana;geheim", "UID=ana;***"}, Given{"=geheim;UID=x", "=***;UID=x"},
                    Given{"Password=ge;heim;UID=ana", "Password=***;***;UID=ana"},
                    Given{"Password=ge;he=im;still=that;UID=ana", "Password=***;***;***;UID=ana"},
                    Given{"Anything=ge;he=im", "Anything=***;***"},
                    Given{"Password='ge';Colour=heim", "Password=***;Colour=***"}));

INSTANTIATE_TEST_SUITE_P(
    Inside, ConnectionStrings,
    testing::Values(Given{R"(Extended Properties="DRIVER=SQL Server;PWD=geheim;UID=ana";Mode=1)",
                          R"(Extended Properties="DRIVER=SQL Server;PWD=***;UID=ana";Mode=1)"},
                    Given{"Extended Properties='PWD=\"ge;heim\"';Mode=1",
                          "Extended Properties='PWD=***';Mode=1"},
                    Given{"Extended Properties=PWD=geheim;UID=ana", "Extended Properties=PWD=***;UID=ana"},
                    Given{"Data Source='srv;PWD=geheim'", "Data Source=***"},
                    Given{"Data Source='srv;PWD=geheim", "Data Source=***"},
                    Given{"Data Source==geheim", "Data Source=***"}));

TEST(ConnectionSecrets, AreTakenOutOfWhatAProviderSays) {
    EXPECT_EQ(WithoutSecretsOf("UID=ana;PWD=geheim", "Login failed for ana with geheim, GEHEIM"),
              "Login failed for ana with ***, ***");
    EXPECT_EQ(WithoutSecretsOf("PWD='ge;heim'", "cannot use ge;heim"), "cannot use ***");
    EXPECT_EQ(WithoutSecretsOf("PWD='ge''heim'", "cannot use ge'heim or ge''heim"), "cannot use *** or ***");
    EXPECT_EQ(WithoutSecretsOf("PWD=ge;he=im;UID=ana", "ge;he=im of ana"), "***;*** of ana");
    EXPECT_EQ(WithoutSecretsOf("Extended Properties='PWD=geheim'", "geheim"), "***");
    EXPECT_EQ(WithoutSecretsOf("Data Source='srv;PWD=geheim", "geheim on srv"), "*** on ***");
    EXPECT_EQ(WithoutSecretsOf("Auth Code=geheim", "geheim"), "***");
    EXPECT_EQ(WithoutSecretsOf("UID=ana;PWD=", "Login failed"), "Login failed");
}

TEST(ConnectionSecrets, LeaveSwitchesAndNumbersInTexts) {
    EXPECT_EQ(WithoutSecretsOf("Colour Mode=false;Depth=15", "15 is false"), "15 is false");
    EXPECT_EQ(WithoutSecretsOf("PWD=15", "15 is false"), "*** is false");
}

}  // namespace
}  // namespace tavrin::doctor
