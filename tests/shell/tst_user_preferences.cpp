#include <QTest>

#include "TestEnv.h"

class UserPreferencesTest : public QObject {
    Q_OBJECT

private slots:
    void missingFileGivesEmptySettingsAndSavesEveryKey();
    void unknownLinesKeepTheirPlace();
};

void UserPreferencesTest::missingFileGivesEmptySettingsAndSavesEveryKey() {
    TestEnv env;
    UserPreferences& prefs = env.state->prefs;
    prefs.SetValue(prefkey::CompanyName, QStringLiteral("stale"));
    prefs.GetUserPreferences(env.state->services);
    QCOMPARE(prefs.Value(prefkey::CompanyName), QString());
    prefs.SetValue(prefkey::NetworkShareDrive, QStringLiteral("e"));
    prefs.SaveUserPreferences(env.state->services);
    QCOMPARE(env.read("UserPreferences.txt"),
             QByteArray("Shared Directory:\r\nCompany Name:\r\nCompany Address 1:\r\n"
                        "Company Address 2:\r\nCompany City, State Zip:\r\nCompany Phone:\r\n"
                        "Company Fax:\r\nCompany Website:\r\nCompany Email:\r\n"
                        "Auto Complete Word:\r\nAuto Start Position:\r\nShow FUT:\r\n"
                        "Minimize FUT:\r\nDefault Printer:\r\nFrequent Terms File:\r\n"
                        "Load FUT Position:\r\nFUT Position:\r\nNetwork Share Drive:e\r\n"
                        "Main Window Position:\r\nShow Time of Day:\r\nCalendar Time Zone:\r\n"));
    VERIFY_DIALOGS(env.dialogs);
}

void UserPreferencesTest::unknownLinesKeepTheirPlace() {
    TestEnv env;
    // Written by hand or by another version: a note, an unknown key, a blank line, keys out of
    // their usual order and values holding ":".
    env.write("userpreferences.TXT",
              "; my settings\r\nFUT Position:10:20\r\nLater Key:42\r\n\r\n"
              "Company Name:Acme: Inc\r\nShared Directory:\\\\server\\share\r\n");
    UserPreferences& prefs = env.state->prefs;
    prefs.GetUserPreferences(env.state->services);
    QCOMPARE(prefs.Value(prefkey::FutPosition), QStringLiteral("10:20"));
    QCOMPARE(prefs.Value(prefkey::CompanyName), QStringLiteral("Acme: Inc"));
    QCOMPARE(prefs.Value(QStringLiteral("Later Key:")), QStringLiteral("42"));
    QCOMPARE(prefs.Value(QStringLiteral("; my settings")), QString());
    prefs.SetValue(prefkey::CompanyName, QStringLiteral("Acme Ltd"));
    prefs.SetValue(QStringLiteral("Newer Key:"), QStringLiteral("x"));
    prefs.SaveUserPreferences(env.state->services);
    QCOMPARE(env.read("userpreferences.TXT"),
             QByteArray("; my settings\r\nFUT Position:10:20\r\nLater Key:42\r\n\r\n"
                        "Company Name:Acme Ltd\r\nShared Directory:\\\\server\\share\r\n"
                        "Company Address 1:\r\nCompany Address 2:\r\nCompany City, State Zip:\r\n"
                        "Company Phone:\r\nCompany Fax:\r\nCompany Website:\r\nCompany Email:\r\n"
                        "Auto Complete Word:\r\nAuto Start Position:\r\nShow FUT:\r\n"
                        "Minimize FUT:\r\nDefault Printer:\r\nFrequent Terms File:\r\n"
                        "Load FUT Position:\r\nNetwork Share Drive:\r\nMain Window Position:\r\n"
                        "Show Time of Day:\r\nCalendar Time Zone:\r\nNewer Key:x\r\n"));
    VERIFY_DIALOGS(env.dialogs);
}

ORVANTA_TEST_MAIN(UserPreferencesTest)
#include "tst_user_preferences.moc"
