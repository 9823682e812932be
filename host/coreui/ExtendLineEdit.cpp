#include <ExtendLineEdit.h>

ExtendLineEdit::ExtendLineEdit(QWidget *parent) : QLineEdit(parent) {}
