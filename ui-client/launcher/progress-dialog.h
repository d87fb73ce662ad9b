// SPDX-License-Identifier: MIT
#pragma once

#include <QProgressDialog>

/// The launcher's only window; its look is fixed by the constructor. GUI thread.
class ProcessingProgressDialog : public QProgressDialog {
    Q_OBJECT

public:
    /// Built hidden, at 0 of 100.
    ProcessingProgressDialog();
    ~ProcessingProgressDialog() override;
};
