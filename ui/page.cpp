#include "ui/page.h"

#include "core/attempt.h"
#include "core/strings.h"
#include "platform/codepage.h"
#include "platform/files.h"

#include <QRegularExpression>
#include <QStringDecoder>

namespace tarvelin::ui
{
namespace
{

constexpr std::size_t longestPage = 8'000'000; ///< bytes that are shown
constexpr qsizetype headSize = 4096;           ///< where a page declares its character set

/// The character set that a page declares, empty for none.
QString declaredSet(const QByteArray& bytes)
{
  static const QRegularExpression declaration(QStringLiteral("charset\\s*=\\s*[\"']?([A-Za-z0-9_.:-]+)"),
                                              QRegularExpression::CaseInsensitiveOption);
  return declaration.match(QString::fromLatin1(bytes.left(headSize))).captured(1).toLower();
}

/// The number of a Windows page by its name ("windows-1250"), 0 for others.
int windowsPage(const QString& name)
{
  static const QRegularExpression windows(QStringLiteral("^(?:windows|x-cp|cp)-?(125[0-8])$"));
  return windows.match(name).captured(1).toInt();
}

QString decodePage(const QByteArray& bytes)
{
  const std::string_view view(bytes.constData(), static_cast<std::size_t>(bytes.size()));
  if (bytes.startsWith("\xEF\xBB\xBF"))
    return QString::fromUtf8(bytes);
  const QString name = declaredSet(bytes);
  if (const int page = windowsPage(name))
    return QString::fromStdString(platform::decode(view, page));
  if (!name.isEmpty())
    if (QStringDecoder decoder(name.toLatin1().constData()); decoder.isValid())
      return decoder.decode(bytes);
  return QString::fromStdString(platform::decode(view));
}

} // namespace

Page readPage(const std::string& path)
{
  std::string bytes;
  attempt([&] { bytes = platform::readFile(path); });
  if (bytes.size() > longestPage)
    bytes.resize(longestPage);
  const std::string name = upper(path);
  if (name.ends_with(".HTML") || name.ends_with(".HTM"))
    return {decodePage(QByteArray::fromStdString(bytes)), true};
  return {QString::fromStdString(platform::decode(bytes)), false};
}

} // namespace tarvelin::ui
