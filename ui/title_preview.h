#pragma once

#include "core/forms/field.h"

#include <QObject>
#include <QPointer>
#include <map>
#include <string>

class QImage;
class QLabel;
class QPainter;
class QRectF;
class QWidget;

namespace tarvelin
{
struct TitulPrvek;
}

namespace tarvelin::ui
{

/// The preview of a title: a screen of the game, four to three, with the title's controls at their places. Pictures are
/// drawn, texts are outlines; the highlighted control stands out. What is not marked is not written, so it is not
/// shown.
class TitlePreview : public QObject, public FieldObserver
{
public:
  /// Paints instead of the label that shows the picture of the highlighted control.
  explicit TitlePreview(QWidget& window);
  ~TitlePreview() override;

private:
  void fieldChanged(Field& field, const FieldChange& change) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paint();
  void paintControl(QPainter& painter, const TitulPrvek& control, const QRectF& screen, bool highlighted);
  void paintPicture(QPainter& painter, const QRectF& place, const std::string& path);

  QPointer<QLabel> m_label;
  std::map<std::string, QImage> m_pictures; ///< by path, as they were read last
};

} // namespace tarvelin::ui
