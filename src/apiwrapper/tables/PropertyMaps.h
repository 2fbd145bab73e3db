// The properties of every class: their tokens and their ids in the engine (the class's PROPERTY).
#pragma once

#include "apiwrapper/tables/TableSize.h"

// clang-format off
inline constexpr PMAP ACCOUNT_PROPERTY_MAP[] = {
    {"1704", 1},  {"1405", 2},  {"1099", 3},  {"1618", 4},  {"1250", 5},  {"1722", 6},  {"1484", 7},  {"2095", 8},
    {"1813", 9},  {"1170", 10}, {"1321", 11}, {"1007", 12}, {"1441", 13}, {"1449", 14}, {"1946", 15}, {"1423", 16},
    {"1446", 17}, {"1199", 18}, {"1419", 19}, {"1842", 20}, {"1532", 21}, {"1819", 22}, {"1892", 23}, {"1797", 24},
    {"1317", 25}, {"1622", 26}, {"1691", 27}, {"1032", 28}, {"1752", 29}, {"1782", 30}, {"1993", 31}, {"1927", 32},
    {"1585", 33}, {"1595", 34}, {"1408", 35}, {"1101", 36}, {"1328", 37}, {"1274", 38}, {"1200", 39}, {"1011", 40},
    {"1297", 41}, {"1824", 42}, {"1442", 43},
    {nullptr, 0}};
static_assert(entriesOf(ACCOUNT_PROPERTY_MAP) == 43);
inline constexpr PMAP ALERT_PROPERTY_MAP[] = {
    {"1192", 1},  {"1683", 2},  {"1600", 3},  {"1223", 4},  {"1567", 5},  {"1005", 6},  {"1407", 7},  {"1579", 8},
    {"1447", 9},  {"1966", 10}, {"1506", 11}, {"1806", 12}, {"1566", 13}, {"1418", 14}, {"2052", 15}, {"1415", 16},
    {"1907", 17}, {"2014", 18}, {"1632", 19}, {"1877", 20},
    {nullptr, 0}};
static_assert(entriesOf(ALERT_PROPERTY_MAP) == 20);
inline constexpr PMAP APP2APP_PROPERTY_MAP[] = {
    {"1462", 1}, {"1524", 2}, {"2071", 3}, {"1049", 4}, {"2066", 5},
    {nullptr, 0}};
static_assert(entriesOf(APP2APP_PROPERTY_MAP) == 5);
inline constexpr PMAP CALLMEMBER_PROPERTY_MAP[] = {
    {"1060", 1},  {"1262", 2},  {"1250", 3},  {"1975", 4},  {"1989", 5},  {"1991", 6},  {"1118", 7},  {"1931", 8},
    {"1532", 9},  {"2054", 10}, {"1505", 11}, {"1013", 12}, {"1643", 13}, {"2025", 14}, {"1477", 15}, {"1287", 16},
    {"1044", 17}, {"1769", 18}, {"1729", 19}, {"1333", 20}, {"1520", 21}, {"1437", 22}, {"1065", 23}, {"1452", 24},
    {"1277", 25}, {"1623", 26}, {"1630", 27}, {"1382", 28}, {"1488", 29}, {"1791", 30}, {"1720", 31}, {"1107", 32},
    {"1304", 33}, {"2087", 34}, {"1245", 35}, {"1620", 36}, {"2039", 37}, {"1081", 38},
    {nullptr, 0}};
static_assert(entriesOf(CALLMEMBER_PROPERTY_MAP) == 38);
inline constexpr PMAP CALL_PROPERTY_MAP[] = {
    {"1577", 1},  {"2022", 2},  {"1695", 3},  {"1725", 4},  {"1064", 5},  {"1333", 6},  {"1801", 7},  {"1013", 8},
    {"1697", 9},  {"1178", 10}, {"1265", 11}, {"1546", 12}, {"1034", 13}, {"1736", 14}, {"1443", 15}, {"1246", 16},
    {"1157", 17}, {"1245", 18},
    {nullptr, 0}};
static_assert(entriesOf(CALL_PROPERTY_MAP) == 18);
inline constexpr PMAP CHATMEMBER_PROPERTY_MAP[] = {
    {"1529", 1}, {"1060", 2}, {"1256", 3}, {"1265", 4}, {"1344", 5},
    {nullptr, 0}};
static_assert(entriesOf(CHATMEMBER_PROPERTY_MAP) == 5);
inline constexpr PMAP CHATMESSAGE_PROPERTY_MAP[] = {
    {"1529", 1},  {"1192", 2},  {"2017", 3},  {"1398", 4},  {"1773", 5},  {"1931", 6},  {"1525", 7},  {"1886", 8},
    {"2002", 9},  {"1127", 10}, {"2082", 11}, {"1298", 12}, {"1518", 13}, {"1532", 14}, {"1209", 15}, {"1496", 16},
    {"1382", 17},
    {nullptr, 0}};
static_assert(entriesOf(CHATMESSAGE_PROPERTY_MAP) == 17);
inline constexpr PMAP CHAT_PROPERTY_MAP[] = {
    {"1546", 1},  {"1236", 2},  {"1322", 3},  {"2102", 4},  {"1192", 5},  {"2029", 6},  {"1931", 7},  {"1591", 8},
    {"1894", 9},  {"1083", 10}, {"1240", 11}, {"1651", 12}, {"1784", 13}, {"1955", 14}, {"1664", 15}, {"2022", 16},
    {"1424", 17}, {"1642", 18}, {"1838", 19}, {"1619", 20}, {"1346", 21}, {"2017", 22}, {"2018", 23},
    {nullptr, 0}};
static_assert(entriesOf(CHAT_PROPERTY_MAP) == 23);
inline constexpr PMAP CONTACTGROUP_PROPERTY_MAP[] = {
    {"1931", 1}, {"1324", 2}, {"1934", 3}, {"1184", 4}, {"1561", 5}, {"1583", 6}, {"2102", 7}, {"1290", 8},
    {nullptr, 0}};
static_assert(entriesOf(CONTACTGROUP_PROPERTY_MAP) == 8);
inline constexpr PMAP CONTACTSEARCH_PROPERTY_MAP[] = {
    {"1532", 1},
    {nullptr, 0}};
static_assert(entriesOf(CONTACTSEARCH_PROPERTY_MAP) == 1);
inline constexpr PMAP CONTACT_PROPERTY_MAP[] = {
    {"1704", 1},  {"1092", 2},  {"1931", 3},  {"1405", 4},  {"1099", 5},  {"1618", 6},  {"1250", 7},  {"1722", 8},
    {"1484", 9},  {"2095", 10}, {"1813", 11}, {"1170", 12}, {"1321", 13}, {"1007", 14}, {"1441", 15}, {"1449", 16},
    {"2075", 17}, {"1073", 18}, {"1909", 19}, {"1842", 20}, {"1238", 21}, {"1324", 22}, {"2107", 23}, {"1413", 24},
    {"1754", 25}, {"1838", 26}, {"1565", 27}, {"1766", 28}, {"1616", 29}, {"1604", 30}, {"1177", 31}, {"1946", 32},
    {"1423", 33}, {"1446", 34}, {"1199", 35}, {"2004", 36}, {"1419", 37}, {"1359", 38}, {"1724", 39}, {"1670", 40},
    {"1527", 41}, {"1792", 42}, {"1307", 43}, {"1793", 44}, {"1570", 45}, {"1794", 46}, {"1865", 47},
    {nullptr, 0}};
static_assert(entriesOf(CONTACT_PROPERTY_MAP) == 47);
inline constexpr PMAP PRICEQUOTE_PROPERTY_MAP[] = {
    {"1330", 1},  {"1295", 2},  {"1931", 3},  {"2102", 4},  {"2104", 5},  {"1991", 6},  {"1118", 7},  {"1937", 8},
    {"1532", 9},  {"2054", 10}, {"1489", 11},
    {nullptr, 0}};
static_assert(entriesOf(PRICEQUOTE_PROPERTY_MAP) == 11);
inline constexpr PMAP SEARCH_PROPERTY_MAP[] = {
    {"1532", 1},
    {nullptr, 0}};
static_assert(entriesOf(SEARCH_PROPERTY_MAP) == 1);
inline constexpr PMAP SMS_PROPERTY_MAP[] = {
    {"1931", 1},  {"1532", 2},  {"2054", 3},  {"1851", 4},  {"1192", 5},  {"2104", 6},  {"1991", 7},  {"1118", 8},
    {"1702", 9},  {"1590", 10}, {"1641", 11}, {"1014", 12},
    {nullptr, 0}};
static_assert(entriesOf(SMS_PROPERTY_MAP) == 12);
inline constexpr PMAP TRANSFER_PROPERTY_MAP[] = {
    {"1931", 1},  {"1627", 2},  {"1674", 3},  {"1532", 4},  {"2054", 5},  {"1903", 6},  {"1990", 7},  {"1291", 8},
    {"1460", 9},  {"1997", 10}, {"1332", 11}, {"1112", 12},
    {nullptr, 0}};
static_assert(entriesOf(TRANSFER_PROPERTY_MAP) == 12);
inline constexpr PMAP VIDEO_PROPERTY_MAP[] = {
    {"1532", 1}, {"1469", 2}, {"1044", 3}, {"1414", 4}, {"1708", 5},
    {nullptr, 0}};
static_assert(entriesOf(VIDEO_PROPERTY_MAP) == 5);
inline constexpr PMAP VOICEMAIL_PROPERTY_MAP[] = {
    {"1931", 1},  {"1627", 2},  {"1674", 3},  {"1532", 4},  {"2054", 5},  {"2045", 6},  {"1192", 7},  {"1801", 8},
    {"1213", 9},  {"2038", 10},
    {nullptr, 0}};
static_assert(entriesOf(VOICEMAIL_PROPERTY_MAP) == 10);
// clang-format on
