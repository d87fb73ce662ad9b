// SPDX-License-Identifier: MIT
#include "worker.h"

#include "folder-lock.h"
#include "log-macros.h"
#include "lumaris-service.h"
#include "service-factory.h"
#include "str-table.h"

#define LOG_MODULE "launcher"
static const ustring LOG_COMPONENT("launcher_debug");

void HandlerThread::run() {
    exec();
}

Worker::Worker() : QObject(nullptr), thread(nullptr), service(NewService()) {
    thread = new HandlerThread;
    moveToThread(thread);
}

Worker::~Worker() {
    delete thread;
    delete service;
}

bool Worker::StartThread() {
    thread->start(QThread::InheritPriority);
    if (!thread->isRunning()) {
        MSG_ERROR("failed to start the worker thread\n");
        return false;
    }
    return true;
}

void Worker::QuitThread() {
    thread->quit();
}

void Worker::JoinThread() {
    thread->wait();
}

void Worker::HandleServicce() {
    MSG_DEBUG("running\n");
    Serve();
    MSG_DEBUG("done\n");
    Q_EMIT sigServiceDone();
}

void Worker::Serve() {
    const FolderLock lock(Service::GetUserLumarisInstallPath());
    service->RecoverUserEnv();
    service->PreUpgrade();
    if (service->IsNeedUpgrade()) {
        Upgrade();
    } else {
        MSG_DEBUG("no need to upgrade\n");
    }
    service->RemoveAgedFolders();
    service->PostUpgrade();
}

void Worker::Upgrade() {
    Q_EMIT sigShowMsg();
    if (service->HandlePackageUpgrade() != 0) {
        MSG_ERROR("Failed to upgrade package\n");
        return;
    }
    Q_EMIT sigUpdateProgress(100, 100);
    Q_EMIT sigSetLabelText(StrTable::LoadStr(StrTable::kReadyText));
}
