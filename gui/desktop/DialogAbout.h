#pragma once

#include <QDialog>

class QGridLayout;

/// Tells what the program is, and where more is to be read.
class DialogAbout : public QDialog
{
    Q_OBJECT

public:
    explicit DialogAbout(QWidget* parent = nullptr);

private slots:
    void slotClose();

private:
    static void addBlock(QGridLayout& grid, const char* pictureName, const char* text);
};
