#include "recovery/Finding.h"

namespace tq {

std::string_view WordsOf(Fault fault) {
  switch (fault) {
  case Fault::Empty:
    return "the file holds nothing";
  case Fault::NoLists:
    return "nothing in the file is a list";
  case Fault::Foreign:
    return "another kind of document";
  case Fault::Declaration:
    return "the XML declaration is missing, broken or names an unknown encoding";
  case Fault::WrongEncoding:
    return "the text is not in the encoding that the declaration names";
  case Fault::DocumentType:
    return "a document type declaration";
  case Fault::CutOff:
    return "the end of the file is missing";
  case Fault::Overwritten:
    return "two files are written over each other";
  case Fault::ZeroBytes:
    return "zero bytes";
  case Fault::OutsideOfLists:
    return "bytes that belong to no list";
  case Fault::BadIndex:
    return "the default index is missing or no number";
  case Fault::Limit:
    return "more than the library loads";
  case Fault::NoId:
    return "the list has no identifier";
  case Fault::RepeatedId:
    return "another list has the identifier";
  case Fault::RepeatedList:
    return "the list is there twice";
  case Fault::BrokenMarkup:
    return "broken markup";
  case Fault::StrayApostrophe:
    return "an apostrophe that is not written as &apos;";
  case Fault::StrayAmpersand:
    return "an ampersand that is not written as &amp;";
  case Fault::StrayLess:
    return "a less-than sign that is not written as &lt;";
  case Fault::HalfCharacter:
    return "half of a double-byte character";
  case Fault::ControlByte:
    return "a control byte";
  case Fault::OtherEncoding:
    return "text in another encoding than the file's";
  case Fault::NotCarried:
    return "a character that the encoding lacks";
  case Fault::LostName:
    return "the name is lost";
  case Fault::LostSymbol:
    return "a symbol is lost";
  case Fault::LostSymbols:
    return "symbols are lost";
  case Fault::TooLong:
    return "longer than a list keeps";
  }
  return "";
}

} // namespace tq
