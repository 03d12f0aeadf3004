#include "gui/frame/MessageGuiAboutDialog.h"

MessageGuiAboutDialog::MessageGuiAboutDialog() : Message(messageType) {}

MessageGuiAboutDialog::~MessageGuiAboutDialog() = default;
