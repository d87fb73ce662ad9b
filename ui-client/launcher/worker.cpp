// SPDX-License-Identifier: MIT
#include "worker.h"

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

void Worker::StartThread() {
    thread->start(QThread::InheritPriority);
}

void Worker::QuitThread() {
    thread->quit();
}

void Worker::JoinThread() {
    thread->wait();
}

void Worker::HandleServicce() {
    MSG_DEBUG("running\n");
    service->PreUpgrade();
    if (service->IsNeedUpgrade()) {
        Upgrade();
    } else {
        MSG_DEBUG("no need to upgrade\n");
    }
    service->RemoveAgedFolders();
    service->PostUpgrade();
    MSG_DEBUG("done\n");
    Q_EMIT sigServiceDone();
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
