// SPDX-License-Identifier: MIT
#include "notify-adapter.h"

Notify_Adapter &Notify_Adapter::GetInstance() {
    static Notify_Adapter instance;
    return instance;
}

void Notify_Adapter::UpdateProgress(int total, int current) {
    Q_EMIT sigUpdateProgress(total, current);
}

void Notify_Adapter::UpdateDialogText(QString text) {
    Q_EMIT sigUpdateDialogText(text);
}
