#pragma once

#include <QImage>
#include <QString>

class QPainter;
class QRectF;
struct 出金伝票帳票;

// One A4 slip page drawn into the page's rectangle on any device: printer, PDF or image. The
// layout is in tenths of a millimetre and scaled to the rectangle.
void 出金伝票描画(QPainter& p, const QRectF& 頁, const 出金伝票帳票& 帳票);

// The page as a white A4 picture of that resolution.
QImage 出金伝票画像(const 出金伝票帳票& 帳票, int dpi = 150);
// The page as a one-page A4 PDF, written whole or not at all.
bool 出金伝票PDF(const 出金伝票帳票& 帳票, const QString& パス);
