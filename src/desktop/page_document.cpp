#include "desktop/page_document.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <cmath>

#include "desktop/desktop_text.h"

namespace zerimo {

namespace {

constexpr QChar LineBreak = QChar(u'\u2028');
constexpr QChar Picture = QChar(u'\uFFFC');
/// A pixel in twentieths of a point.
constexpr double TwipsPerPixel = 15;
/// The first-line indent of a bullet paragraph belongs to the bullet, which the toolkit places itself.
constexpr int BulletIndent = QTextFormat::UserProperty + 1;

double Pixels(int twips) { return twips / TwipsPerPixel; }
int Twips(double pixels) { return static_cast<int>(std::lround(pixels * TwipsPerPixel)); }

Colour FromQColor(const QColor& colour) { return colour.red() + 256 * colour.green() + 65536 * colour.blue(); }

QTextCharFormat ToFormat(const CharacterForm& form) {
  QTextCharFormat format;
  if (!form.FontName.empty()) format.setFontFamilies({QString::fromStdString(form.FontName)});
  format.setFontPointSize(form.HalfPoints / 2.0);
  if (form.Bold) format.setFontWeight(QFont::Bold);
  format.setFontItalic(form.Italic);
  format.setFontUnderline(form.Underline);
  format.setFontStrikeOut(form.Strike);
  if (form.Color) format.setForeground(ToQColor(*form.Color));
  if (form.Background) format.setBackground(ToQColor(*form.Background));
  return format;
}

CharacterForm ToForm(const QTextCharFormat& format) {
  CharacterForm form;
  const QStringList families = format.fontFamilies().toStringList();
  if (!families.isEmpty()) form.FontName = families.first().toStdString();
  if (format.fontPointSize() > 0) form.HalfPoints = static_cast<int>(std::lround(format.fontPointSize() * 2));
  form.Bold = format.fontWeight() >= QFont::Bold;
  form.Italic = format.fontItalic();
  form.Underline = format.fontUnderline();
  form.Strike = format.fontStrikeOut();
  if (format.hasProperty(QTextFormat::ForegroundBrush)) form.Color = FromQColor(format.foreground().color());
  if (format.hasProperty(QTextFormat::BackgroundBrush)) form.Background = FromQColor(format.background().color());
  return form;
}

struct AlignmentTwin {
  Alignment Page;
  Qt::AlignmentFlag Shown;
};
constexpr AlignmentTwin Alignments[] = {{Alignment::Left, Qt::AlignLeft},
                                        {Alignment::Centre, Qt::AlignHCenter},
                                        {Alignment::Right, Qt::AlignRight},
                                        {Alignment::Justified, Qt::AlignJustify}};

QTextBlockFormat ToFormat(const ParagraphForm& form) {
  QTextBlockFormat format;
  for (const AlignmentTwin& twin : Alignments) {
    if (twin.Page == form.Align) format.setAlignment(twin.Shown);
  }
  format.setLeftMargin(Pixels(form.LeftIndent));
  format.setRightMargin(Pixels(form.RightIndent));
  format.setTopMargin(Pixels(form.SpaceBefore));
  format.setBottomMargin(Pixels(form.SpaceAfter));
  if (form.Bullet) {
    format.setProperty(BulletIndent, form.FirstIndent);
  } else {
    format.setTextIndent(Pixels(form.FirstIndent));
  }
  QList<QTextOption::Tab> tabs;
  for (const int tab : form.Tabs) tabs.append(QTextOption::Tab(Pixels(tab), QTextOption::LeftTab));
  if (!tabs.isEmpty()) format.setTabPositions(tabs);
  return format;
}

ParagraphForm ToForm(const QTextBlock& block) {
  const QTextBlockFormat format = block.blockFormat();
  ParagraphForm form;
  for (const AlignmentTwin& twin : Alignments) {
    if (format.alignment().testFlag(twin.Shown)) form.Align = twin.Page;
  }
  form.LeftIndent = Twips(format.leftMargin());
  form.RightIndent = Twips(format.rightMargin());
  form.SpaceBefore = Twips(format.topMargin());
  form.SpaceAfter = Twips(format.bottomMargin());
  form.Bullet = block.textList() != nullptr;
  form.FirstIndent = form.Bullet ? format.intProperty(BulletIndent) : Twips(format.textIndent());
  for (const QTextOption::Tab& tab : format.tabPositions()) form.Tabs.push_back(Twips(tab.position));
  return form;
}

void Insert(QTextCursor& cursor, const Paragraph& paragraph, QTextList*& bullets) {
  for (const TextRun& run : paragraph.Runs) {
    QString text = QString::fromStdString(run.Text);
    cursor.insertText(text.replace(QLatin1Char('\n'), LineBreak), ToFormat(run.Form));
  }
  if (!paragraph.Form.Bullet) {
    bullets = nullptr;
  } else if (bullets != nullptr) {
    bullets->add(cursor.block());
  } else {
    QTextListFormat list;
    list.setStyle(QTextListFormat::ListDisc);
    list.setIndent(0);
    bullets = cursor.createList(list);
  }
}

}  // namespace

void FillDocument(QTextDocument& document, const RichText& page) {
  document.clear();
  QTextCursor cursor(&document);
  cursor.beginEditBlock();
  QTextList* bullets = nullptr;
  bool isFirst = true;
  for (const Paragraph& paragraph : page.Paragraphs) {
    const QTextCharFormat letters = paragraph.Runs.empty() ? QTextCharFormat() : ToFormat(paragraph.Runs[0].Form);
    if (isFirst) {
      cursor.setBlockFormat(ToFormat(paragraph.Form));
    } else {
      cursor.insertBlock(ToFormat(paragraph.Form), letters);
    }
    isFirst = false;
    Insert(cursor, paragraph, bullets);
  }
  cursor.endEditBlock();
}

RichText ReadDocument(const QTextDocument& document) {
  RichText page;
  page.Paragraphs.clear();
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    Paragraph paragraph{ToForm(block), {}};
    for (auto walk = block.begin(); !walk.atEnd(); ++walk) {
      QString text = walk.fragment().text();
      text.remove(Picture).replace(LineBreak, QLatin1Char('\n'));
      Append(paragraph, text.toStdString(), ToForm(walk.fragment().charFormat()));
    }
    page.Paragraphs.push_back(std::move(paragraph));
  }
  return page;
}

}  // namespace zerimo
