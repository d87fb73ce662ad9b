// SPDX-License-Identifier: MIT
#include "launcher.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <QThread>
#include <atomic>

#include "lumaris-service.h"
#include "notify-adapter.h"
#include "service-factory.h"
#include "str-table.h"
#include "test-support.h"

namespace {

/// A run of the service, and what the user sees of it.
struct RunCase {
    const char *what;
    int result;
    bool needed;
    bool quits;               // the desktop ends the application in the middle of the upgrade
    std::vector<int> values;  // of the bar
    const char *label;        // the last one
};
const RunCase *run;
std::string calls;
std::atomic<bool> loop_ended;

/// Notes the order in which it is driven, in place of the system's service.
class RecordingService : public Service {
public:
    ~RecordingService() override { calls += "destroyed"; }
    void StopService() override {}
    void PreUpgrade() override { calls += "PreUpgrade "; }
    bool IsNeedUpgrade() override {
        EXPECT_NE(qApp->thread(), QThread::currentThread());
        calls += "IsNeedUpgrade ";
        return run->needed;
    }
    int HandlePackageUpgrade() override {
        calls += "HandlePackageUpgrade ";
        if (run->quits) {
            QMetaObject::invokeMethod(qApp,
                                      [] { qApp->postEvent(qApp, new QEvent(QEvent::Quit)); });
            EXPECT_TRUE(Eventually([] { return loop_ended.load(); }));
        }
        Notify_Adapter::GetInstance().UpdateDialogText(QStringLiteral("from the relay"));
        Notify_Adapter::GetInstance().UpdateProgress(3, 2);
        return run->result;
    }
    void PostUpgrade() override { calls += "PostUpgrade "; }
};

using LauncherTest = HomeTest;

/// That of the only launcher.
QProgressDialog *Dialog() {
    return qobject_cast<QProgressDialog *>(QApplication::topLevelWidgets().at(0));
}

TEST_F(LauncherTest, TheDialogFollowsTheRun) {
    const int two_thirds = 66;  // of UpdateProgress(3, 2), in percent
    const RunCase cases[] = {
        {"upgraded", 0, true, false, {two_thirds, 100}, "Lumaris Backup is ready."},
        {"failed, the old client is opened", -1, true, false, {two_thirds, 100}, "from the relay"},
        {"nothing to do", 0, false, false, {100}, "Lumaris Backup is initializing..."},
        {"ended by the desktop", 0, true, true, {}, "Lumaris Backup is initializing..."},
    };
    for (const RunCase &row : cases) {
        SCOPED_TRACE(row.what);
        run = &row;
        calls.clear();
        loop_ended = false;
        auto *launcher = new Launcher;
        std::vector<int> values;
        auto *bar = Dialog()->findChild<QProgressBar *>();
        QObject::connect(bar, &QProgressBar::valueChanged, bar, [&values, &row](int value) {
            values.push_back(value);
            EXPECT_EQ(row.needed, Dialog()->isVisible()) << value;
        });
        launcher->Run();
        launcher->Start();
        EXPECT_EQ(0, QApplication::exec());
        EXPECT_FALSE(Dialog()->isVisible());
        EXPECT_EQ(row.values, values);
        EXPECT_EQ(row.label, Dialog()->labelText().toStdString());
        loop_ended = true;
        delete launcher;  // waits for the service
        const std::string upgrade = row.needed ? "HandlePackageUpgrade " : "";
        EXPECT_EQ("PreUpgrade IsNeedUpgrade " + upgrade + "PostUpgrade destroyed", calls);
    }
}

TEST_F(LauncherTest, OnlyTheSystemClosesTheDialog) {
    const Launcher launcher;
    Dialog()->show();
    EXPECT_EQ(nullptr, Dialog()->findChild<QPushButton *>()) << "a button to cancel";
    QTest::keyClick(Dialog(), Qt::Key_Escape);
    EXPECT_FALSE(Dialog()->close());
    EXPECT_TRUE(Dialog()->isVisible());
    QEvent by_the_system(QEvent::Close);  // as macOS sends at log-out
    QCoreApplication::sendEvent(qApp, &by_the_system);
    EXPECT_FALSE(Dialog()->isVisible());
}

TEST_F(LauncherTest, IsReadableInADarkTheme) {
    QApplication::setPalette(QColor(50, 50, 50));  // the other colours follow from the window's
    const Launcher launcher;
    Dialog()->show();
    // From the dialog, so that the ground behind the text is in it.
    const QImage shown = Dialog()->grab(Dialog()->findChild<QLabel *>()->geometry()).toImage();
    QApplication::setPalette(QPalette());
    std::set<int> grays;  // from 0 for black to 255 for white
    for (int i = 0; i < shown.width() * shown.height(); ++i) {
        grays.insert(qGray(shown.pixel(i % shown.width(), i / shown.width())));
    }
    EXPECT_GT(*grays.rbegin() - *grays.begin(), 128) << "the text is like its ground";
}

}  // namespace

Service *NewService() {
    return new RecordingService;
}

// For the other files of this folder, too.
int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    StrTable::InitStrTable();
    return RUN_ALL_TESTS();
}
