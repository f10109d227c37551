// The desktop's box for files and folders.
#pragma once

#include "tests/tour/driver.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTest>

/// Answers the desktop's box for files and folders with a path, as a user types it.
inline void answerFileBox(const Driver &driver, const QString &path)
{
    QFileDialog *box = nullptr;
    driver.await(QStringLiteral("the box for files opens"), [&] {
        box = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        return box && box->isVisible();
    });
    auto *field = box->findChild<QLineEdit *>();
    driver.check(field != nullptr, QStringLiteral("the box has a field for a path"));
    field->setFocus();
    field->setText(path);
    QTest::keyClick(field, Qt::Key_Return);
    driver.await(QStringLiteral("the box for files is closed"),
                 [] { return QApplication::activeModalWidget() == nullptr; });
}
