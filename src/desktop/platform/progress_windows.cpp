// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/platform/progress_windows.h"

#include <algorithm>

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/interruption.h"

namespace campora {

namespace {

// In milliseconds.
constexpr qint64 kDelay = 500;
constexpr qint64 kBetweenEvents = 40;
constexpr int kWidth = 360;  // pixels

}  // namespace

/// What is being done, how far it is, and a button to end it. Keys typed at nothing do not press
/// the button: it is no default, and the bar has the keyboard. Esc and the window's cross do.
class ProgressWindow final : public QDialog {
public:
    ProgressWindow(QWidget* parent, const QString& caption, const QString& cancel)
        : QDialog(parent), bar_(new QProgressBar(this)) {
        setWindowModality(Qt::WindowModal);
        setMinimumWidth(kWidth);
        setWindowTitle(QApplication::applicationDisplayName());
        auto* const rows = new QVBoxLayout(this);
        auto* const label = new QLabel(caption, this);
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(Qt::AlignCenter);
        rows->addWidget(label);
        bar_->setRange(0, 100);
        bar_->setFocusPolicy(Qt::StrongFocus);
        bar_->setAccessibleName(caption);
        rows->addWidget(bar_);
        auto* const button = new QPushButton(cancel, this);
        button->setAutoDefault(false);
        rows->addWidget(button, 0, Qt::AlignRight);
        bar_->setFocus();
        connect(button, &QPushButton::clicked, this, &QDialog::reject);
        sinceRest_.start();
    }

    void reject() override {
        isCancelled_ = true;
        QDialog::reject();
    }
    /// The user has seen something else, and takes what comes next for new.
    void rest() {
        hide();
        sinceRest_.start();
    }
    [[nodiscard]] bool isCancelled() const { return isCancelled_; }
    /// Once the work has taken long.
    void showPercent(int percent) {
        const bool isNew = isHidden() || percent != bar_->value();
        if (isCancelled_ || (isHidden() && sinceRest_.elapsed() < kDelay) ||
            (!isNew && sinceEvents_.elapsed() < kBetweenEvents)) {
            return;
        }
        bar_->setValue(percent);
        show();
        QApplication::processEvents();
        sinceEvents_.start();
    }

private:
    QProgressBar* bar_;
    QElapsedTimer sinceRest_;
    QElapsedTimer sinceEvents_;
    bool isCancelled_ = false;
};

class ProgressWindows::Work final : public Progress {
public:
    Work(ProgressWindows& windows, std::unique_ptr<ProgressWindow> window)
        : windows_(windows), boxes_(windows.boxes_), window_(std::move(window)) {
        windows_.open_.push_back(window_.get());
    }
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;
    ~Work() override { std::erase(windows_.open_, window_.get()); }

    [[nodiscard]] bool report(int percent) override {
        if (windows_.boxes_ == boxes_ && windows_.open_.back() == window_.get()) {
            window_->showPercent(percent);
        }
        return !window_->isCancelled() && !isInterrupted();
    }

private:
    ProgressWindows& windows_;
    /// Those that stood when the work began.
    int boxes_;
    std::unique_ptr<ProgressWindow> window_;
};

ProgressWindows::Hidden::Hidden(ProgressWindows& windows) : windows_(windows) {
    ++windows_.boxes_;
    windows_.hideAll();
}

ProgressWindows::Hidden::~Hidden() {
    --windows_.boxes_;
    windows_.hideAll();  // their time begins anew: no flash between two questions
}

std::unique_ptr<Progress> ProgressWindows::start(const std::function<QWidget*()>& owner,
                                                 const QString& caption, const QString& cancel) {
    hideAll();  // the owner is not to be a window of outer work
    return std::make_unique<Work>(*this,
                                  std::make_unique<ProgressWindow>(owner(), caption, cancel));
}

void ProgressWindows::hideAll() {
    for (ProgressWindow* const window : open_) {
        window->rest();
    }
}

}  // namespace campora
