#include "launcher.h"

#include <QApplication>
#include <QProgressBar>
#include <QSignalSpy>
#include <QThread>
#include <QTimer>

#include "mac/mac-service.h"
#include "notify-adapter.h"
#include "progress-dialog.h"
#include "str-table.h"
#include "test-support.h"
#include "worker.h"

namespace {

std::vector<std::string> calls;
bool upgrade_needed = true;
int upgrade_result = 0;
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
    return upgrade_needed;
}
int MacService::HandlePackageUpgrade() {
    calls.push_back("HandlePackageUpgrade");
    Notify_Adapter::GetInstance().UpdateDialogText(QStringLiteral("from the relay"));
    for (int entry = 1; entry <= 3; ++entry)
        Notify_Adapter::GetInstance().UpdateProgress(3, entry);
    return upgrade_result;
}
void MacService::PostUpgrade() {
    calls.push_back("PostUpgrade");
}

namespace {

/// The launcher's dialog, while a launcher exists.
ProcessingProgressDialog *Dialog() {
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *dialog = qobject_cast<ProcessingProgressDialog *>(widget))
            return dialog;
    }
    return nullptr;
}

class LauncherTest : public HomeTest {
protected:
    LauncherTest() {
        StrTable::InitStrTable();
        calls.clear();
        upgrade_needed = true;
        upgrade_result = 0;
    }
    /// One run to its end; returns what the dialog showed: its values and labels in order.
    std::string Run() {
        std::string seen;
        {
            Launcher launcher;
            auto *bar = Dialog()->findChild<QProgressBar *>();
            QObject::connect(bar, &QProgressBar::valueChanged, bar, [&](int value) {
                seen += std::to_string(value) + (Dialog()->isVisible() ? " " : "h ");
            });
            launcher.Run();
            launcher.Start();
            QTimer::singleShot(20000, qApp, [] { QCoreApplication::exit(1); });
            EXPECT_EQ(0, QApplication::exec());
            EXPECT_FALSE(Dialog()->isVisible());
            seen += Dialog()->labelText().toStdString();
        }
        return seen;
    }
};

using Calls = std::vector<std::string>;

TEST_F(LauncherTest, DialogIsBuiltAsDesigned) {
    Launcher launcher;
    const ProcessingProgressDialog *dialog = Dialog();
    EXPECT_TRUE(dialog->isHidden());
    EXPECT_EQ("Lumaris Backup", dialog->windowTitle().toStdString());
    EXPECT_EQ("Lumaris Backup is initializing...", dialog->labelText().toStdString());
    EXPECT_EQ(0x3000, int(dialog->windowFlags() & ~Qt::WindowType_Mask));
    EXPECT_EQ(Qt::WindowModal, dialog->windowModality());
    EXPECT_TRUE(dialog->isModal());
    EXPECT_EQ("Arial", dialog->font().family().toStdString());
    EXPECT_EQ(400, dialog->minimumWidth());
    EXPECT_EQ(400, dialog->maximumWidth());
    EXPECT_EQ(0, dialog->minimum());
    EXPECT_EQ(100, dialog->maximum());
    EXPECT_EQ(0, dialog->value());
    EXPECT_FALSE(dialog->autoReset());
    EXPECT_EQ(77, dialog->styleSheet().size());
    EXPECT_TRUE(dialog->styleSheet().contains(QStringLiteral("; \n  vertical-align")));
}

TEST_F(LauncherTest, UpgradeIsFollowedToTheEnd) {
    const std::string seen = Run();
    EXPECT_EQ(
        (Calls{"PreUpgrade", "IsNeedUpgrade", "HandlePackageUpgrade", "PostUpgrade", "destroyed"}),
        calls);
    EXPECT_EQ("33 66 100 Lumaris Backup is ready.", seen);
    EXPECT_NE(QThread::currentThread(), service_thread);
    EXPECT_TRUE(Logged("[DEBUG] launcher(")) << Log();
    EXPECT_TRUE(Logged("removing aged app folder")) << Log();
}

TEST_F(LauncherTest, FailedUpgradeStillOpensTheClient) {
    upgrade_result = -1;
    EXPECT_EQ("33 66 100 from the relay", Run());
    EXPECT_EQ("PostUpgrade", calls[3]);
    EXPECT_TRUE(Logged("[ERROR] launcher(")) << Log();
    EXPECT_TRUE(Logged("): Failed to upgrade package\n")) << Log();
}

TEST_F(LauncherTest, NothingToUpgradeShowsNothing) {
    upgrade_needed = false;
    EXPECT_EQ("100h Lumaris Backup is initializing...", Run());
    EXPECT_EQ((Calls{"PreUpgrade", "IsNeedUpgrade", "PostUpgrade", "destroyed"}), calls);
    const std::string log = Log();
    const size_t running = log.find("): running\n"), none = log.find("): no need to upgrade\n");
    EXPECT_LT(running, none);
    EXPECT_LT(none, log.find("): done\n"));
    EXPECT_NE(std::string::npos, log.find("): done\n"));
}

TEST_F(LauncherTest, ClosingTheDialogEndsNothing) {
    for (const bool escape : {true, false}) {
        Launcher launcher;
        ProcessingProgressDialog *dialog = Dialog();
        dialog->show();
        QTimer::singleShot(0, dialog, [=] {
            if (escape)
                dialog->reject();
            else
                dialog->close();
            EXPECT_FALSE(dialog->isVisible());
        });
        bool reached = false;
        QTimer::singleShot(300, qApp, [&] {
            reached = true;
            Notify_Adapter::GetInstance().UpdateProgress(2, 1);
            EXPECT_EQ(50, dialog->value());
            EXPECT_FALSE(dialog->isVisible()) << "closed is closed";
            QCoreApplication::quit();
        });
        QApplication::exec();
        EXPECT_TRUE(reached) << "the loop ended with the dialog";
    }
}

TEST_F(LauncherTest, SignalsReachTheirSlots) {
    Launcher launcher;
    Worker worker;
    QSignalSpy show(&worker, SIGNAL(sigShowMsg())), done(&worker, SIGNAL(sigServiceDone()));
    QSignalSpy progress(&worker, SIGNAL(sigUpdateProgress(int, int)));
    QSignalSpy text(&worker, SIGNAL(sigSetLabelText(QString)));
    QMetaObject::invokeMethod(&worker, "HandleServicce", Qt::DirectConnection);
    EXPECT_EQ(1, show.count());
    EXPECT_EQ(1, done.count());
    ASSERT_EQ(1, progress.count());
    EXPECT_EQ(100, progress[0][0].toInt());
    EXPECT_EQ(100, progress[0][1].toInt());
    ASSERT_EQ(1, text.count());
    EXPECT_EQ("Lumaris Backup is ready.", text[0][0].toString().toStdString());
    EXPECT_EQ(33, Dialog()->value() / 3) << "the relay's reports of this run arrived";
}

}  // namespace

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
