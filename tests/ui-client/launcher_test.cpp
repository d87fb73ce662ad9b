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
#include <clocale>
#include <cmath>

#include "lumaris-service.h"
#include "notify-adapter.h"
#include "service-factory.h"
#include "str-table.h"
#include "test-support.h"

namespace {

struct RunCase {
    bool needed;
    bool quits;  // the desktop ends the application in the middle of the upgrade
    int result;
    // Each value of the bar with the first letter of the label then and "h" when hidden, and the
    // last label.
    const char *shown;
    const char *called = "PreUpgrade IsNeedUpgrade HandlePackageUpgrade PostUpgrade destroyed";
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

TEST_F(LauncherTest, TheDialogFollowsTheRun) {
    const RunCase cases[] = {
        {true, false, 0, "66f 100f Lumaris Backup is ready."},
        {true, false, -1, "66f 100f from the relay"},  // and the old client is opened
        {false, false, 0, "100Lh Lumaris Backup is initializing...",
         "PreUpgrade IsNeedUpgrade PostUpgrade destroyed"},
        {true, true, 0, "Lumaris Backup is initializing..."},
    };
    for (const auto &row : cases) {
        run = &row;
        calls.clear();
        loop_ended = false;
        std::string shown;
        auto *launcher = new Launcher;
        auto *dialog = qobject_cast<QProgressDialog *>(QApplication::topLevelWidgets().at(0));
        auto *bar = dialog->findChild<QProgressBar *>();
        QObject::connect(bar, &QProgressBar::valueChanged, bar, [&](int value) {
            shown += std::to_string(value) + dialog->labelText().toStdString()[0] +
                     (dialog->isVisible() ? " " : "h ");
        });
        launcher->Run();
        launcher->Start();
        EXPECT_EQ(0, QApplication::exec());
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_EQ(row.shown, shown + dialog->labelText().toStdString());
        loop_ended = true;
        delete launcher;
        EXPECT_EQ(row.called, calls) << row.shown;
    }
}

TEST_F(LauncherTest, OnlyTheSystemClosesTheDialog) {
    Launcher launcher;
    auto *dialog = qobject_cast<QProgressDialog *>(QApplication::topLevelWidgets().at(0));
    EXPECT_EQ("Lumaris Backup", dialog->windowTitle().toStdString());
    EXPECT_EQ(QSize(400, 400), QSize(dialog->minimumWidth(), dialog->maximumWidth()));
    EXPECT_EQ(nullptr, dialog->findChild<QPushButton *>());
    dialog->show();
    QEvent other(QEvent::WinIdChange);  // one that no widget handles
    EXPECT_FALSE(QCoreApplication::sendEvent(dialog, &other)) << "taken away from the dialog";
    QCoreApplication::sendEvent(qApp, &other);
    QTest::keyClick(dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog->close());
    EXPECT_TRUE(dialog->isVisible());

    QEvent by_the_system(QEvent::Close);
    QCoreApplication::sendEvent(qApp, &by_the_system);
    EXPECT_FALSE(dialog->isVisible());
}

/// As the eye sees it, from 0 for black to 1 for white.
double Luminance(const QColor &color) {
    const auto linear = [](double part) { return std::pow((part + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

TEST_F(LauncherTest, IsReadableInADarkTheme) {
    QApplication::setPalette(QColor(50, 50, 50));  // the other colours follow from the window's
    Launcher launcher;
    auto *dialog = QApplication::topLevelWidgets().at(0);
    dialog->show();
    const QImage label =
        dialog->grab(dialog->findChild<QLabel *>()->geometry()).toImage();  // and what lies below
    QApplication::setPalette(QPalette());
    double darkest = 1, lightest = 0;
    for (int i = 0; i < label.width() * label.height(); ++i) {
        const QColor color = label.pixelColor(i % label.width(), i / label.width());
        darkest = std::min(darkest, Luminance(color));
        lightest = std::max(lightest, Luminance(color));
    }
    EXPECT_GE((lightest + 0.05) / (darkest + 0.05), 7);
}

}  // namespace

Service *NewService() {
    return new RecordingService;
}

// For the other files of this folder, too.
int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    if (setlocale(LC_ALL, "C.UTF-8") == nullptr) {
        setlocale(LC_ALL, "en_US.UTF-8");  // as macOS has it
    }
    StrTable::InitStrTable();
    return RUN_ALL_TESTS();
}
