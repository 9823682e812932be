#include "DragTableWidget.h"

DragTableWidget::DragTableWidget(QWidget *parent) : QTableWidget(parent) {}

DragTableWidget::~DragTableWidget() = default;
