// SPDX-License-Identifier: MIT
#include "launcher.h"

#include <QApplication>
#include <QCloseEvent>
#include <QProgressBar>
#include <QSemaphore>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <atomic>

#include "lumaris-service.h"
#include "notify-adapter.h"
#include "progress-dialog.h"
#include "service-factory.h"
#include "str-table.h"
#include "test-support.h"

namespace {

std::string calls;
bool upgrade_needed = true, waits = false;
int upgrade_result = 0;
std::atomic<bool> opened{false}, working{false};
QSemaphore may_go_on;

/// Notes the order in which it is driven, in place of the system's service.
class RecordingService : public Service {
public:
    ~RecordingService() override { calls += "destroyed"; }
    void StopService() override {}
    void PreUpgrade() override {
        EXPECT_NE(qApp->thread(), QThread::currentThread());
        calls += "PreUpgrade ";
    }
    bool IsNeedUpgrade() override {
        calls += "IsNeedUpgrade ";
        Wait(!upgrade_needed);
        return upgrade_needed;
    }
    int HandlePackageUpgrade() override {
        calls += "HandlePackageUpgrade ";
        Wait(true);
        Notify_Adapter::GetInstance().UpdateDialogText(QStringLiteral("from the relay"));
        Notify_Adapter::GetInstance().UpdateProgress(3, 1);
        Notify_Adapter::GetInstance().UpdateProgress(3, 2);
        return upgrade_result;
    }
    void PostUpgrade() override {
        calls += "PostUpgrade ";
        opened = true;
    }

private:
    static void Wait(bool here) {
        working = here;
        if (here && waits) {
            may_go_on.tryAcquire(1, 5000);
        }
    }
};

}  // namespace

Service *NewService() {
    return new RecordingService;
}

namespace {

/// The launcher's dialog, while a launcher exists.
ProcessingProgressDialog *Dialog() {
    ProcessingProgressDialog *found = nullptr;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        found = found ? found : qobject_cast<ProcessingProgressDialog *>(widget);
    }
    return found;
}

class LauncherTest : public HomeTest {
protected:
    LauncherTest() {
        StrTable::InitStrTable();
        Reset(true, 0);
        waits = false;
    }
    static void Reset(bool needed, int result) {
        calls.clear();
        upgrade_needed = needed;
        upgrade_result = result;
        opened = working = false;
    }
    /// One run to its end; returns what the dialog showed: every value with the first letter of
    /// the label then and "h" when hidden, and the last label.
    static std::string Run() {
        std::string seen;
        Launcher launcher;
        auto *bar = Dialog()->findChild<QProgressBar *>();
        QObject::connect(bar, &QProgressBar::valueChanged, bar, [&](int value) {
            seen += std::to_string(value) + Dialog()->labelText().toStdString()[0] +
                    (Dialog()->isVisible() ? " " : "h ");
        });
        launcher.Run();
        launcher.Start();
        EXPECT_EQ(0, QApplication::exec());
        EXPECT_FALSE(Dialog()->isVisible());
        return seen + Dialog()->labelText().toStdString();
    }
};

TEST_F(LauncherTest, TheDialogFollowsTheRun) {
    EXPECT_EQ("33f 66f 100f Lumaris Backup is ready.", Run());
    EXPECT_EQ("PreUpgrade IsNeedUpgrade HandlePackageUpgrade PostUpgrade destroyed", calls);
    EXPECT_TRUE(Logged("removing aged app folder")) << Log();

    Reset(true, -1);
    EXPECT_EQ("33f 66f 100f from the relay", Run());
    EXPECT_TRUE(opened) << "the old client";
    EXPECT_TRUE(Logged("): Failed to upgrade package\n")) << Log();

    Reset(false, 0);
    EXPECT_EQ("100Lh Lumaris Backup is initializing...", Run());
    EXPECT_EQ("PreUpgrade IsNeedUpgrade PostUpgrade destroyed", calls);
    EXPECT_LT(Log().find("): no need to upgrade\n"), Log().rfind("): done\n"));
}

TEST_F(LauncherTest, OnlyTheSystemClosesTheDialog) {
    Launcher launcher;
    ProcessingProgressDialog *dialog = Dialog();
    EXPECT_EQ("Lumaris Backup", dialog->windowTitle().toStdString());
    EXPECT_EQ(QSize(400, 400), QSize(dialog->minimumWidth(), dialog->maximumWidth()));
    EXPECT_FALSE(dialog->isVisible());
    dialog->show();
    QEvent other(QEvent::WinIdChange);  // one that no widget handles
    EXPECT_FALSE(QCoreApplication::sendEvent(dialog, &other)) << "taken away from the dialog";
    QTest::keyClick(dialog, Qt::Key_Escape);
    QCloseEvent by_the_user;
    QCoreApplication::sendEvent(dialog->windowHandle(), &by_the_user);
    EXPECT_FALSE(by_the_user.isAccepted());
    EXPECT_TRUE(dialog->isVisible());
    Notify_Adapter::GetInstance().UpdateProgress(2, 1);
    EXPECT_EQ(50, dialog->value());

    QCloseEvent by_the_system;
    QCoreApplication::sendEvent(qApp, &by_the_system);
    EXPECT_TRUE(by_the_system.isAccepted());
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(LauncherTest, AskedToQuitItFinishesTheRun) {
    waits = true;
    for (const bool visible : {true, false}) {
        SCOPED_TRACE(visible);
        Reset(visible, 0);
        Launcher *launcher = new Launcher;
        launcher->Run();
        launcher->Start();
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            if (working && Dialog()->isVisible() == visible) {
                QCoreApplication::postEvent(qApp, new QEvent(QEvent::Quit));
            }
        });
        timer.start(5);
        EXPECT_EQ(0, QApplication::exec());
        EXPECT_FALSE(opened) << "the loop ends before the run does";
        EXPECT_FALSE(Dialog()->isVisible());
        may_go_on.release();
        delete launcher;
        EXPECT_TRUE(opened);
    }
}

}  // namespace

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
