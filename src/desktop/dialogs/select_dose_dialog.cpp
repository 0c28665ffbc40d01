// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/dialogs/select_dose_dialog.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "desktop/platform/pointer_override.h"
#include "desktop/platform/qt_text.h"
#include "desktop/widgets/color_list.h"

namespace campora {

namespace {

constexpr QSize kSize{300, 380};
constexpr int kMargin = 16;
constexpr int kGap = 8;

}  // namespace

SelectDoseDialog::SelectDoseDialog(const ColorScale* scale, float currentDose, const Desk& desk,
                                   QWidget* parent)
    : QDialog(parent),
      choice_(scale, currentDose, desk),
      rbExistent_(new QRadioButton(toQt(desk.texts(TextId::DoseExisting)), this)),
      rbManual_(new QRadioButton(toQt(desk.texts(TextId::DoseNew)), this)),
      viewer_(new ColorList(this)),
      txtNewDosis_(new QLineEdit(toQt(choice_.text()), this)) {
    setObjectName("frmSelectDosis");
    setWindowTitle(toQt(desk.texts(TextId::DoseTitle)));
    makeChoices(desk);
    auto* const ok = new QPushButton(toQt(desk.texts(TextId::ButtonOk)), this);
    ok->setObjectName("cmdOk");
    ok->setDefault(true);
    auto* const cancel = new QPushButton(toQt(desk.texts(TextId::ButtonCancel)), this);
    cancel->setObjectName("cmdCancel");
    cancel->setAutoDefault(false);
    connect(ok, &QPushButton::clicked, this, [this] { accept(); });
    connect(cancel, &QPushButton::clicked, this, [this] { reject(); });

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    column->addWidget(rbExistent_);
    column->addWidget(viewer_, 1);
    auto* const typed = new QHBoxLayout;
    typed->addWidget(rbManual_);
    typed->addWidget(txtNewDosis_, 1);
    column->addLayout(typed);
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    column->addLayout(buttons);
    resize(kSize);
    showWay();
    if (choice_.hasExisting()) {
        rbExistent_->setFocus();
    } else {
        txtNewDosis_->setFocus();
        txtNewDosis_->selectAll();
    }
}

void SelectDoseDialog::makeChoices(const Desk& desk) {
    rbExistent_->setObjectName("rbExistent");
    rbManual_->setObjectName("rbManual");
    viewer_->setObjectName("viewer");
    viewer_->setAccessibleName(rbExistent_->text());
    viewer_->setRows(choice_.legend().classes, toQt(choice_.legend().unit),
                     toQt(desk.texts(TextId::LegendColor)));
    viewer_->clearSelection();
    txtNewDosis_->setObjectName("txtNewDosis");
    txtNewDosis_->setAccessibleName(rbManual_->text());
    txtNewDosis_->installEventFilter(this);
    rbExistent_->setEnabled(choice_.hasExisting());
    viewer_->setEnabled(choice_.hasExisting());

    connect(rbExistent_, &QRadioButton::toggled, this, [this](bool on) {
        choice_.setWay(on ? DoseChoice::Way::Existing : DoseChoice::Way::New);
    });
    connect(viewer_, &QListWidget::itemPressed, this, [this] { selectionChanged(); });
    connect(viewer_, &QListWidget::itemSelectionChanged, this, [this] { selectionChanged(); });
    connect(
        viewer_, &ColorList::rowOpened, this, [this] { accept(); }, Qt::QueuedConnection);
    connect(txtNewDosis_, &QLineEdit::textChanged, this,
            [this](const QString& text) { choice_.setText(toUtf8(text)); });
}

void SelectDoseDialog::selectionChanged() {
    const QList<QListWidgetItem*> selected = viewer_->selectedItems();
    choice_.selectClass(selected.empty() ? std::nullopt
                                         : std::optional(viewer_->row(selected.front())));
    showWay();
}

void SelectDoseDialog::showWay() {
    (choice_.way() == DoseChoice::Way::Existing ? rbExistent_ : rbManual_)->setChecked(true);
}

bool SelectDoseDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtNewDosis_ && event->type() == QEvent::FocusIn) {
        choice_.setWay(DoseChoice::Way::New);
        showWay();
    }
    return QDialog::eventFilter(watched, event);
}

std::optional<float> SelectDoseDialog::getDosis() {
    const PointerOverride arrow(Qt::ArrowCursor);
    return exec() == Accepted ? dose_ : std::nullopt;
}

void SelectDoseDialog::accept() {
    dose_ = choice_.accept();
    if (dose_) {
        QDialog::accept();
    }
}

}  // namespace campora
