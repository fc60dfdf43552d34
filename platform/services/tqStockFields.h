// The numbers of tqStock, the terminal's stock-attribute library: attributes, kinds of instruments
// and info tables. They are that library's and other programs store them; do not change.
#pragma once

// Codes of the attributes that the library asks for.
enum Field : int {
  FieldSymbolId = 1,   // text: full symbol id
  FieldSymbolName = 2, // text: display name, that of SymbolInfo or longer where its field cuts it
  FieldTradeCode = 81, // text, trading data: the code under which orders are placed
  FieldMark = 109,     // text of one character, the kind at a glance; a blank when there is none
  FieldKind = 110,     // number: kind of instrument, see InstrumentKind
  FieldBoard = 111,    // number: section of the exchange
  FieldExchangeName = 112,   // text: short code of the exchange; as a number: the exchange's number
  FieldLegExchange = 113,    // text: exchange of a combination's legs; as a number: its number
  FieldIndustry = 155,       // text
  FieldUnderlying = 156,     // text: code of what a derivative stands on
  FieldContractMonth = 157,  // text: "yyyymm" of a derivative
  FieldCurrency = 164,       // text: three letters
  FieldTradingStatus = 169,  // number, trading data: 1 while the symbol trades
  FieldReferencePrice = 170, // text of a decimal number, trading data
  FieldPreviousClose = 171,  // text of a decimal number, trading data
  FieldExpiryDate = 172,     // number: yyyymmdd, 0 for what does not expire
  FieldTradeLot = 176,       // number above 0: units in one board lot
  FieldOddLot = 178,         // number, trading data: the least number of units that can be traded
  FieldOpeningReference = 179, // text of a decimal number, trading data
  FieldExchangeCode = 184,     // text: the exchange's own code
  FieldContractSize = 186,     // number, trading data: units behind one contract
  FieldExchangeTitle = 188,    // text, trading data: what a person reads for the exchange
  FieldTradingSession = 189,   // text, trading data
  FieldTradingNote = 190,      // text, trading data
  FieldSettlementMonth = 191,  // text, trading data
  FieldMarginNote = 192,       // text, trading data
  FieldDecimals = 3006,        // number: decimal places of a price
  FieldPriceScale = 3007,      // number: ten to the power of the decimal places, at most of 9
};

// The columns of those tables. A row has the first three; one that ends before a column does not
// have it.
enum InfoColumn : int {
  InfoRegion = 0,   // where the series is from: what a search can be narrowed down to
  InfoCategory = 1, // what it is about: the same
  InfoCode = 2,     // the series' code, ASCII, which no other row of the table has
  InfoName = 3,     // what a person reads
  InfoMarket =
      4, // futures: the market that trades them, ASCII; a search hands it back as its third text
};

// Values of FieldKind.
enum InstrumentKind : int {
  InstrumentOther = 0,
  InstrumentStock = 1,
  InstrumentIndex = 2,
  InstrumentEtf = 3,
  InstrumentWarrant = 4,
  InstrumentFuture = 5,
  InstrumentOption = 6,
  InstrumentBond = 7,
  InstrumentPreferred = 8,
  InstrumentEtn = 9,
};

// The info tables of CStockKey::GetInfoArray. The caller's other values are passed through.
enum InfoType : int {
  InfoEconomicIndicators = 8,
  InfoCommodities = 10, // the terminal may have more tables of commodities under other numbers
  InfoInternationalFutures = 11,
};
