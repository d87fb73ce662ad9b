#include "launcher.h"

#include <QApplication>
#include <QProgressBar>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <atomic>

#include "mac/mac-service.h"
#include "notify-adapter.h"
#include "progress-dialog.h"
#include "str-table.h"
#include "test-support.h"

namespace {

using Calls = std::vector<std::string>;
Calls calls;
bool upgrade_needed = true;
int upgrade_result = 0;
std::atomic<bool> opened{false};
unsigned long decision_ms = 0;
QThread *service_thread = nullptr;

}  // namespace

// A service that notes the order in which it is driven; linked in place of the real one.
MacService::MacService() = default;
MacService::~MacService() {
    calls.push_back("destroyed");
}
void MacService::StopService() {}
void MacService::PreUpgrade() {
    service_thread = QThread::currentThread();
    calls.push_back("PreUpgrade");
}
bool MacService::IsNeedUpgrade() {
    calls.push_back("IsNeedUpgrade");
    QThread::msleep(decision_ms);
    return upgrade_needed;
}
int MacService::HandlePackageUpgrade() {
    calls.push_back("HandlePackageUpgrade");
    Notify_Adapter::GetInstance().UpdateDialogText(QStringLiteral("from the relay"));
    Notify_Adapter::GetInstance().UpdateProgress(3, 1);
    Notify_Adapter::GetInstance().UpdateProgress(3, 2);
    return upgrade_result;
}
void MacService::PostUpgrade() {
    calls.push_back("PostUpgrade");
    opened = true;
}

namespace {

/// The launcher's dialog, while a launcher exists.
ProcessingProgressDialog *Dialog() {
    ProcessingProgressDialog *found = nullptr;
    for (QWidget *widget : QApplication::topLevelWidgets())
        found = found ? found : qobject_cast<ProcessingProgressDialog *>(widget);
    return found;
}

class LauncherTest : public HomeTest {
protected:
    LauncherTest() {
        StrTable::InitStrTable();
        calls.clear();
        upgrade_needed = true;
        upgrade_result = 0;
        decision_ms = 0;
        opened = false;
    }
    /// One run to its end; returns what the dialog showed: every value with the first letter of
    /// the label then and "h" when hidden, and the last label.
    std::string Run() {
        std::string seen;
        Launcher launcher;
        auto *bar = Dialog()->findChild<QProgressBar *>();
        QObject::connect(bar, &QProgressBar::valueChanged, bar, [&](int value) {
            seen += std::to_string(value) + Dialog()->labelText().toStdString()[0] +
                    (Dialog()->isVisible() ? " " : "h ");
        });
        launcher.Run();
        launcher.Start();
        QTimer::singleShot(20000, qApp, [] { QCoreApplication::exit(1); });
        EXPECT_EQ(0, QApplication::exec());
        EXPECT_FALSE(Dialog()->isVisible());
        return seen + Dialog()->labelText().toStdString();
    }
};

TEST_F(LauncherTest, DialogIsBuiltAsDesigned) {
    Launcher launcher;
    const ProcessingProgressDialog *dialog = Dialog();
    EXPECT_TRUE(dialog->isHidden() && dialog->isModal() && !dialog->autoReset());
    EXPECT_EQ("Lumaris Backup", dialog->windowTitle().toStdString());
    EXPECT_EQ(0x3000, int(dialog->windowFlags() & ~Qt::WindowType_Mask));
    EXPECT_EQ("Arial", dialog->font().family().toStdString());
    EXPECT_TRUE(dialog->minimumWidth() == 400 && dialog->maximumWidth() == 400);
    EXPECT_TRUE(dialog->minimum() == 0 && dialog->maximum() == 100 && dialog->value() == 0);
    EXPECT_EQ(77, dialog->styleSheet().size());
}

TEST_F(LauncherTest, UpgradeIsFollowedToTheEnd) {
    EXPECT_EQ("33f 66f 100f Lumaris Backup is ready.", Run());
    EXPECT_EQ(
        (Calls{"PreUpgrade", "IsNeedUpgrade", "HandlePackageUpgrade", "PostUpgrade", "destroyed"}),
        calls);
    EXPECT_NE(QThread::currentThread(), service_thread);
    EXPECT_TRUE(Logged("removing aged app folder")) << Log();
}

TEST_F(LauncherTest, FailedUpgradeStillOpensTheClient) {
    upgrade_result = -1;
    EXPECT_EQ("33f 66f 100f from the relay", Run());
    EXPECT_EQ("PostUpgrade", calls[3]);
    EXPECT_TRUE(Logged("): Failed to upgrade package\n")) << Log();
}

TEST_F(LauncherTest, NothingToUpgradeShowsNothing) {
    upgrade_needed = false;
    EXPECT_EQ("100Lh Lumaris Backup is initializing...", Run());
    EXPECT_EQ((Calls{"PreUpgrade", "IsNeedUpgrade", "PostUpgrade", "destroyed"}), calls);
    EXPECT_LT(Log().find("): no need to upgrade\n"), Log().find("): done\n"));
}

TEST_F(LauncherTest, TheDialogStaysOpen) {
    Launcher launcher;
    ProcessingProgressDialog *dialog = Dialog();
    dialog->show();
    QTest::keyClick(dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog->close());
    EXPECT_TRUE(dialog->isVisible());
    Notify_Adapter::GetInstance().UpdateProgress(2, 1);
    EXPECT_EQ(50, dialog->value());
}

TEST_F(LauncherTest, QuitFromTheDesktopWaitsForTheRun) {
    upgrade_needed = false;  // a visible dialog refuses to close and so keeps the loop running
    decision_ms = 400;
    {
        Launcher launcher;
        launcher.Run();
        launcher.Start();
        QTimer::singleShot(100, qApp,
                           [] { QCoreApplication::postEvent(qApp, new QEvent(QEvent::Quit)); });
        EXPECT_EQ(0, QApplication::exec());
        EXPECT_FALSE(opened) << "the loop ends before the run does";
    }
    ASSERT_EQ(4u, calls.size());
    EXPECT_EQ("PostUpgrade", calls[2]);
}

}  // namespace

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
