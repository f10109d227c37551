#include "app/messagebox.h"

#include "app/pressbutton.h"

#include <QLabel>
#include <QVBoxLayout>

OMessageBox::OMessageBox(const QString &title, const QString &text, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
{
    setModal(true);
    setWindowTitle(title);
    setMinimumWidth(360);

    auto *titleLabel = new QLabel(title, this);
    titleLabel->setObjectName(QStringLiteral("title"));
    auto *textLabel = new QLabel(text, this);
    textLabel->setObjectName(QStringLiteral("text"));
    textLabel->setTextFormat(Qt::PlainText);
    textLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    textLabel->setWordWrap(true);
    auto *button = new OPressButton(tr("确定"), this);
    button->setDefault(true);
    connect(button, &QPushButton::clicked, this, &QDialog::accept);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 16, 24, 16);
    layout->setSpacing(16);
    layout->addWidget(titleLabel);
    layout->addWidget(textLabel, 1);
    layout->addWidget(button, 0, Qt::AlignRight);
}

void OMessageBox::show(const QString &title, const QString &text)
{
    OMessageBox(title, text).exec();
}
