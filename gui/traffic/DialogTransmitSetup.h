#pragma once

#include <QDialog>

class ObjectTransmit;

/// Imports the messages of a Transmit window from a configuration of the tool ZORB.
class DialogTransmitSetup : public QDialog
{
    Q_OBJECT

public:
    explicit DialogTransmitSetup(QWidget* parent = nullptr);

    /// The object that takes the messages; null if there is none.
    void setObject(ObjectTransmit* object) { m_object = object; }

signals:
    /// A file was read: the object's lines may be others.
    void signalUpdate();

private slots:
    void slotImportZorb();
    void slotClose();

private:
    ObjectTransmit* m_object = nullptr;
};
