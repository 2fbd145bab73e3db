// The tokens of every enumeration of the protocol and their numbers in the engine. A token listed twice
// counts with its first number.
#pragma once

#include "apiwrapper/tables/TableSize.h"

// clang-format off
// Account
inline constexpr PMAP ACCOUNT_AVAILABILITY_MAP[] = {
    {"1760", 1}, {"1169", 2}, {"1242", 3}, {"1385", 4}, {"1316", 5}, {"1130", 6}, {"1175", 7}, {"1705", 8},
    {"1462", 9},
    {nullptr, 0}};
static_assert(entriesOf(ACCOUNT_AVAILABILITY_MAP) == 9);
inline constexpr PMAP ACCOUNT_AVATARPOLICY_MAP[] = {
    {"1923", 2}, {"1097", 1},
    {nullptr, 0}};
static_assert(entriesOf(ACCOUNT_AVATARPOLICY_MAP) == 2);
inline constexpr PMAP ACCOUNT_BUDDYCOUNTPOLICY_MAP[] = {
    {"1839", 1}, {"1841", 2},
    {nullptr, 0}};
static_assert(entriesOf(ACCOUNT_BUDDYCOUNTPOLICY_MAP) == 2);
inline constexpr PMAP ACCOUNT_CAPABILITYSTATUS_MAP[] = {
    {"1949", 1}, {"1498", 2}, {"1306", 3}, {"1775", 4}, {"1828", 5},
    {nullptr, 0}};
static_assert(entriesOf(ACCOUNT_CAPABILITYSTATUS_MAP) == 5);
inline constexpr PMAP ACCOUNT_CBLSYNCSTATUS_MAP[] = {
    {"2100", 1}, {"1067", 2}, {"1889", 3}, {"1467", 4}, {"1028", 5}, {"1395", 6},
    {nullptr, 0}};
static_assert(entriesOf(ACCOUNT_CBLSYNCSTATUS_MAP) == 6);
inline constexpr PMAP ACCOUNT_CHATPOLICY_MAP[] = {
    {"1339", 1}, {"1392", 2},
    {nullptr, 0}};
static_assert(entriesOf(ACCOUNT_CHATPOLICY_MAP) == 2);
inline constexpr PMAP ACCOUNT_COMMITSTATUS_MAP[] = {
    {"1082", 1}, {"1896", 2}, {"1732", 3},
    {nullptr, 0}};
static_assert(entriesOf(ACCOUNT_COMMITSTATUS_MAP) == 3);
inline constexpr PMAP ACCOUNT_LOGOUTREASON_MAP[] = {
    {"1329", 1},  {"2058", 2},  {"1530", 3},  {"1454", 4},  {"1812", 5},  {"2008", 6},  {"1171", 7},  {"1514", 8},
    {"1818", 9},  {"1351", 10}, {"1575", 11}, {"1340", 12}, {"1678", 13}, {"1481", 14}, {"2031", 15}, {"1589", 16},
    {"1689", 17}, {"1753", 18}, {"1350", 19}, {"1002", 20}, {"2055", 21}, {"1356", 22}, {"1543", 23},
    {nullptr, 0}};
static_assert(entriesOf(ACCOUNT_LOGOUTREASON_MAP) == 23);
inline constexpr PMAP ACCOUNT_PHONENUMBERSPOLICY_MAP[] = {
    {"1916", 1}, {"1696", 2},
    {nullptr, 0}};
static_assert(entriesOf(ACCOUNT_PHONENUMBERSPOLICY_MAP) == 2);
inline constexpr PMAP ACCOUNT_PSTNCALLPOLICY_MAP[] = {
    {"1471", 1}, {"1364", 2}, {"1742", 3},
    {nullptr, 0}};
static_assert(entriesOf(ACCOUNT_PSTNCALLPOLICY_MAP) == 3);
inline constexpr PMAP ACCOUNT_PWDCHANGESTATUS_MAP[] = {
    {"1796", 1}, {"1827", 2}, {"1692", 3}, {"1863", 4}, {"1654", 5}, {"1121", 6}, {"1427", 7}, {"1856", 8},
    {nullptr, 0}};
static_assert(entriesOf(ACCOUNT_PWDCHANGESTATUS_MAP) == 8);
inline constexpr PMAP ACCOUNT_ZELTOCALLPOLICY_MAP[] = {
    {"1631", 1}, {"1048", 2},
    {nullptr, 0}};
static_assert(entriesOf(ACCOUNT_ZELTOCALLPOLICY_MAP) == 2);
inline constexpr PMAP ACCOUNT_STATUS_MAP[] = {
    {"1113", 1}, {"1568", 2}, {"1637", 3}, {"1145", 4}, {"1254", 5}, {"1134", 6}, {"1719", 7}, {"1644", 8},
    {nullptr, 0}};
static_assert(entriesOf(ACCOUNT_STATUS_MAP) == 8);
inline constexpr PMAP ACCOUNT_TIMEZONEPOLICY_MAP[] = {
    {"1658", 1}, {"1536", 2}, {"1302", 3},
    {nullptr, 0}};
static_assert(entriesOf(ACCOUNT_TIMEZONEPOLICY_MAP) == 3);
inline constexpr PMAP ACCOUNT_VALIDATERESULT_MAP[] = {
    {"1653", 0}, {"1084", 1}, {"1430", 2}, {"1541", 3}, {"1068", 4}, {"1361", 5}, {"1185", 6}, {"1834", 7},
    {"1372", 8}, {"1342", 9},
    {nullptr, 0}};
static_assert(entriesOf(ACCOUNT_VALIDATERESULT_MAP) == 10);
inline constexpr PMAP ACCOUNT_VOICEMAILPOLICY_MAP[] = {
    {"1640", 1}, {"1241", 2},
    {nullptr, 0}};
static_assert(entriesOf(ACCOUNT_VOICEMAILPOLICY_MAP) == 2);
inline constexpr PMAP ACCOUNT_WEBPRESENCEPOLICY_MAP[] = {
    {"1776", 1}, {"1147", 2},
    {nullptr, 0}};
static_assert(entriesOf(ACCOUNT_WEBPRESENCEPOLICY_MAP) == 2);

// Call
inline constexpr PMAP CALL_CLEARCALLHISTORYTYPE_MAP[] = {
    {"1023", 1}, {"1638", 2}, {"1933", 3}, {"1963", 4},
    {nullptr, 0}};
static_assert(entriesOf(CALL_CLEARCALLHISTORYTYPE_MAP) == 4);

// CallMember
inline constexpr PMAP CALLMEMBER_DTMF_MAP[] = {
    {"1957", 1},  {"1958", 2},  {"1153", 3},  {"1956", 4},  {"1961", 5},  {"1962", 6},  {"1959", 7},  {"1960", 8},
    {"1952", 9},  {"1149", 10}, {"1940", 11}, {"1633", 12},
    {nullptr, 0}};
static_assert(entriesOf(CALLMEMBER_DTMF_MAP) == 12);
inline constexpr PMAP CALLMEMBER_ENDACTION_MAP[] = {
    {"1849", 1}, {"2043", 2}, {"1279", 3}, {"1323", 4}, {"1910", 5},
    {nullptr, 0}};
static_assert(entriesOf(CALLMEMBER_ENDACTION_MAP) == 5);
inline constexpr PMAP CALLMEMBER_FAILUREREASON_MAP[] = {
    {"1390", 1},  {"1521", 2},  {"1912", 3},  {"1495", 4},  {"1820", 5},  {"1352", 6},  {"1281", 7},  {"1717", 8},
    {"1024", 9},  {"1490", 10}, {"1677", 11}, {"1807", 12}, {"1458", 13},
    {nullptr, 0}};
static_assert(entriesOf(CALLMEMBER_FAILUREREASON_MAP) == 13);
inline constexpr PMAP CALLMEMBER_MIKESTATUS_MAP[] = {
    {"1057", 1}, {"1612", 2}, {"1202", 3},
    {nullptr, 0}};
static_assert(entriesOf(CALLMEMBER_MIKESTATUS_MAP) == 3);
inline constexpr PMAP CALLMEMBER_QUALITYSTATUS_MAP[] = {
    {"1434", 1},  {"2094", 2},  {"1999", 3},  {"2093", 4},  {"1741", 5},  {"1748", 6},  {"1688", 7},  {"2030", 8},
    {"1141", 9},  {"1646", 10}, {"1039", 11}, {"1944", 12}, {"1320", 13}, {"1507", 14}, {"1292", 15}, {"1602", 16},
    {"1987", 17},
    {nullptr, 0}};
static_assert(entriesOf(CALLMEMBER_QUALITYSTATUS_MAP) == 17);
inline constexpr PMAP CALLMEMBER_STATUS_MAP[] = {
    {"1464", 1},  {"1687", 2},  {"1095", 3},  {"1862", 4},  {"1743", 5},  {"1116", 6},  {"1456", 7},  {"1410", 8},
    {"1155", 9},  {"1721", 10}, {"1229", 11}, {"1399", 12}, {"1278", 13}, {"1846", 14}, {"1173", 15}, {"1144", 16},
    {"1285", 17}, {"1491", 18}, {"1992", 19}, {"1457", 20}, {"1151", 21}, {"1140", 22}, {"1052", 23}, {"1869", 24},
    {"1982", 25}, {"1716", 26},
    {nullptr, 0}};
static_assert(entriesOf(CALLMEMBER_STATUS_MAP) == 26);
inline constexpr PMAP CALLMEMBER_TYPE_MAP[] = {
    {"1939", 1}, {"1895", 2}, {"1809", 3}, {"1206", 4}, {"1852", 5},
    {nullptr, 0}};
static_assert(entriesOf(CALLMEMBER_TYPE_MAP) == 5);
inline constexpr PMAP CALLMEMBER_VIDEOSTATUS_MAP[] = {
    {"1876", 1}, {"1387", 2}, {"1613", 3}, {"1745", 4},
    {nullptr, 0}};
static_assert(entriesOf(CALLMEMBER_VIDEOSTATUS_MAP) == 4);

// Chat
inline constexpr PMAP CHAT_LEAVEREASON_MAP[] = {
    {"1714", 1}, {"1403", 2},
    {nullptr, 0}};
static_assert(entriesOf(CHAT_LEAVEREASON_MAP) == 2);
inline constexpr PMAP CHAT_MYSTATUS_MAP[] = {
    {"1462", 1},  {"1224", 2},  {"1810", 3},  {"1331", 4},  {"2096", 5},  {"1578", 6},  {"2108", 7},  {"2079", 8},
    {"1021", 9},  {"1656", 10}, {"1374", 11}, {"2050", 12},
    {nullptr, 0}};
static_assert(entriesOf(CHAT_MYSTATUS_MAP) == 12);
inline constexpr PMAP CHAT_TYPE_MAP[] = {
    {"1108", 1}, {"1445", 2}, {"1680", 3}, {"1100", 4}, {"1409", 5},
    {nullptr, 0}};
static_assert(entriesOf(CHAT_TYPE_MAP) == 5);

// ChatMember
inline constexpr PMAP CHATMEMBER_ACTIVITY_MAP[] = {
    {"1876", 1}, {"2109", 2}, {"1336", 3}, {"1540", 4},
    {nullptr, 0}};
static_assert(entriesOf(CHATMEMBER_ACTIVITY_MAP) == 4);
inline constexpr PMAP CHATMEMBER_ROLE_MAP[] = {
    {"1326", 1}, {"2061", 2}, {"1284", 3}, {"1042", 4}, {"2083", 5}, {"1123", 6}, {"1366", 7},
    {nullptr, 0}};
static_assert(entriesOf(CHATMEMBER_ROLE_MAP) == 7);

// ChatMessage
inline constexpr PMAP CHATMESSAGE_LEAVEREASON_MAP[] = {
    {"1897", 1}, {"1707", 2}, {"1125", 3}, {"1212", 4}, {"1714", 5}, {"1403", 6},
    {nullptr, 0}};
static_assert(entriesOf(CHATMESSAGE_LEAVEREASON_MAP) == 6);
inline constexpr PMAP CHATMESSAGE_STATUS_MAP[] = {
    {"1049", 1}, {"1296", 2}, {"2066", 3}, {"1607", 4},
    {nullptr, 0}};
static_assert(entriesOf(CHATMESSAGE_STATUS_MAP) == 4);
inline constexpr PMAP CHATMESSAGE_TYPE_MAP[] = {
    {"2011", 1},  {"1143", 2},  {"1062", 3},  {"1087", 4},  {"1922", 5},  {"1369", 6},  {"1280", 7},  {"1207", 8},
    {"1394", 9},  {"1453", 10}, {"1374", 11}, {"1783", 12}, {"2040", 13}, {"1516", 14}, {"1166", 15}, {"1517", 16},
    {"1760", 17},
    {nullptr, 0}};
static_assert(entriesOf(CHATMESSAGE_TYPE_MAP) == 17);

// Contact
inline constexpr PMAP CONTACT_AUTHLEVEL_MAP[] = {
    {"1876", 1}, {"1978", 2}, {"1269", 3},
    {nullptr, 0}};
static_assert(entriesOf(CONTACT_AUTHLEVEL_MAP) == 3);
inline constexpr PMAP CONTACT_AVAILABILITY_MAP[] = {
    {"1760", 1},  {"1878", 2},  {"2064", 3},  {"1493", 4},  {"1485", 5},  {"1169", 6},  {"1242", 7},  {"1760", 1},
    {"1385", 8},  {"1316", 9},  {"1130", 10}, {"1705", 11}, {"2026", 12}, {"1919", 13}, {"1089", 14}, {"1943", 15},
    {"1681", 16}, {"1835", 17}, {"1272", 18},
    {nullptr, 0}};
static_assert(entriesOf(CONTACT_AVAILABILITY_MAP) == 19);
inline constexpr PMAP CONTACT_CAPABILITY_MAP[] = {
    {"1119", 1},  {"1634", 2},  {"1480", 3},  {"1502", 4},  {"1215", 5},  {"1264", 6},  {"1412", 7},  {"1231", 8},
    {"2010", 9},  {"1244", 10}, {"1635", 11}, {"1257", 12}, {"1008", 13}, {"1831", 14}, {"1432", 15},
    {nullptr, 0}};
static_assert(entriesOf(CONTACT_CAPABILITY_MAP) == 15);
inline constexpr PMAP CONTACT_NORMALIZERESULT_MAP[] = {
    {"1001", 1}, {"1461", 2}, {"1823", 3}, {"1868", 4}, {"1817", 5}, {"1370", 6}, {"1055", 7}, {"1136", 8},
    {nullptr, 0}};
static_assert(entriesOf(CONTACT_NORMALIZERESULT_MAP) == 8);
inline constexpr PMAP CONTACT_TYPE_MAP[] = {
    {"1463", 1}, {"1465", 2}, {"1569", 3}, {"2007", 4}, {"1881", 5}, {"1606", 6},
    {nullptr, 0}};
static_assert(entriesOf(CONTACT_TYPE_MAP) == 6);

// ContactGroup
inline constexpr PMAP CONTACTGROUP_TYPE_MAP[] = {
    {"2080", 1},  {"2067", 2},  {"2012", 3},  {"1755", 4},  {"1756", 5},  {"1078", 6},  {"1510", 7},  {"1017", 8},
    {"1763", 9},  {"1932", 10}, {"1217", 11}, {"1563", 12}, {"1225", 13}, {"1077", 14},
    {nullptr, 0}};
static_assert(entriesOf(CONTACTGROUP_TYPE_MAP) == 14);

// ContactSearch
inline constexpr PMAP CONTACTSEARCH_CONDITION_MAP[] = {
    {"1187", 1},  {"1015", 2},  {"1019", 3},  {"1115", 4},  {"1111", 5},  {"1126", 6},  {"1428", 7},  {"1128", 8},
    {"1738", 9},  {"1247", 10},
    {nullptr, 0}};
static_assert(entriesOf(CONTACTSEARCH_CONDITION_MAP) == 10);
inline constexpr PMAP CONTACTSEARCH_CONTACTFIELDS_MAP[] = {
    {"1704", 1},  {"1405", 2},  {"1099", 3},  {"1618", 4},  {"1250", 5},  {"1722", 6},  {"1484", 7},  {"2095", 8},
    {"1813", 9},  {"1170", 10}, {"1321", 11}, {"1007", 12}, {"1441", 13},
    {nullptr, 0}};
static_assert(entriesOf(CONTACTSEARCH_CONTACTFIELDS_MAP) == 13);
inline constexpr PMAP CONTACTSEARCH_STATUS_MAP[] = {
    {"2070", 1}, {"1875", 2}, {"1190", 3}, {"1229", 4}, {"1862", 5},
    {nullptr, 0}};
static_assert(entriesOf(CONTACTSEARCH_STATUS_MAP) == 5);

// PriceQuote
inline constexpr PMAP PRICEQUOTE_FAILUREREASON_MAP[] = {
    {"1723", 1},  {"1735", 2},  {"1610", 3},  {"1593", 4},  {"2090", 5},  {"2009", 6},  {"1814", 7},  {"1624", 8},
    {"1319", 9},  {"1822", 10}, {"1948", 11}, {"1232", 12}, {"1908", 13},
    {nullptr, 0}};
static_assert(entriesOf(PRICEQUOTE_FAILUREREASON_MAP) == 13);
inline constexpr PMAP PRICEQUOTE_STATUS_MAP[] = {
    {"1875", 1}, {"1727", 2}, {"1410", 3}, {"1229", 4},
    {nullptr, 0}};
static_assert(entriesOf(PRICEQUOTE_STATUS_MAP) == 4);
inline constexpr PMAP PRICEQUOTE_TYPE_MAP[] = {
    {"1472", 1}, {"1205", 2},
    {nullptr, 0}};
static_assert(entriesOf(PRICEQUOTE_TYPE_MAP) == 2);

// Search
inline constexpr PMAP SEARCH_CONDITION_MAP[] = {
    {"1187", 1},  {"1015", 2},  {"1019", 3},  {"1115", 4},  {"1111", 5},  {"1126", 6},  {"1428", 7},  {"1128", 8},
    {"1738", 9},  {"1247", 10},
    {nullptr, 0}};
static_assert(entriesOf(SEARCH_CONDITION_MAP) == 10);
inline constexpr PMAP SEARCH_STATUS_MAP[] = {
    {"1875", 1}, {"1190", 2}, {"1229", 3}, {"1862", 4},
    {nullptr, 0}};
static_assert(entriesOf(SEARCH_STATUS_MAP) == 4);
inline constexpr PMAP SEARCH_TARGET_MAP[] = {
    {"1764", 1}, {"2085", 2}, {"1459", 3}, {"1133", 4}, {"1988", 5}, {"1974", 6}, {"1684", 7}, {"1609", 8},
    {nullptr, 0}};
static_assert(entriesOf(SEARCH_TARGET_MAP) == 8);

// Sms
inline constexpr PMAP SMS_CONFIRM_TYPE_MAP[] = {
    {"2047", 0}, {"1672", 1}, {"1180", 2},
    {nullptr, 0}};
static_assert(entriesOf(SMS_CONFIRM_TYPE_MAP) == 3);
inline constexpr PMAP SMS_FAILUREREASON_MAP[] = {
    {"1390", 1}, {"1812", 2}, {"1515", 3}, {"1373", 4}, {"2003", 5}, {"1273", 6}, {"1679", 7}, {"1614", 8},
    {"2020", 9},
    {nullptr, 0}};
static_assert(entriesOf(SMS_FAILUREREASON_MAP) == 9);
inline constexpr PMAP SMS_SETBODYRESULT_MAP[] = {
    {"1220", 1}, {"1504", 2}, {"1434", 3}, {"1379", 4},
    {nullptr, 0}};
static_assert(entriesOf(SMS_SETBODYRESULT_MAP) == 4);
inline constexpr PMAP SMS_STATUS_MAP[] = {
    {"2066", 1}, {"1607", 2}, {"1047", 3}, {"1135", 4}, {"1808", 5}, {"1260", 6}, {"1802", 7}, {"1862", 8},
    {nullptr, 0}};
static_assert(entriesOf(SMS_STATUS_MAP) == 8);
inline constexpr PMAP SMS_TARGETSTATUS_MAP[] = {
    {"1900", 1}, {"1770", 2}, {"1357", 3}, {"2072", 4}, {"1103", 5}, {"1193", 6}, {"1051", 7},
    {nullptr, 0}};
static_assert(entriesOf(SMS_TARGETSTATUS_MAP) == 7);
inline constexpr PMAP SMS_TYPE_MAP[] = {
    {"1363", 1}, {"1884", 2}, {"1266", 3}, {"1815", 4},
    {nullptr, 0}};
static_assert(entriesOf(SMS_TYPE_MAP) == 4);

// Transfer
inline constexpr PMAP TRANSFER_FAILUREREASON_MAP[] = {
    {"1233", 1}, {"1433", 2}, {"1737", 3}, {"1509", 4}, {"1503", 5}, {"1230", 6}, {"1426", 7}, {"1599", 8},
    {nullptr, 0}};
static_assert(entriesOf(TRANSFER_FAILUREREASON_MAP) == 8);
inline constexpr PMAP TRANSFER_STATUS_MAP[] = {
    {"1487", 1},  {"1462", 2},  {"1129", 3},  {"1052", 4},  {"1043", 5},  {"1779", 6},  {"1771", 7},  {"1095", 8},
    {"2089", 9},  {"1862", 10},
    {nullptr, 0}};
static_assert(entriesOf(TRANSFER_STATUS_MAP) == 10);
inline constexpr PMAP TRANSFER_TYPE_MAP[] = {
    {"1363", 1}, {"1884", 2},
    {nullptr, 0}};
static_assert(entriesOf(TRANSFER_TYPE_MAP) == 2);

// Video
inline constexpr PMAP VIDEO_MEDIA_TYPE_MAP[] = {
    {"1311", 1}, {"1621", 2},
    {nullptr, 0}};
static_assert(entriesOf(VIDEO_MEDIA_TYPE_MAP) == 2);
inline constexpr PMAP VIDEO_STATUS_MAP[] = {
    {"1316", 1}, {"1142", 2}, {"1584", 3}, {"1393", 4}, {"1132", 5}, {"1494", 6}, {"1779", 7},
    {nullptr, 0}};
static_assert(entriesOf(VIDEO_STATUS_MAP) == 7);

// Voicemail
inline constexpr PMAP VOICEMAIL_FAILUREREASON_MAP[] = {
    {"1390", 1}, {"1367", 2}, {"1483", 3}, {"1071", 4}, {"1710", 5}, {"2053", 6}, {"1951", 7}, {"1840", 8},
    {"1203", 9},
    {nullptr, 0}};
static_assert(entriesOf(VOICEMAIL_FAILUREREASON_MAP) == 9);
inline constexpr PMAP VOICEMAIL_STATUS_MAP[] = {
    {"1534", 1},  {"1858", 2},  {"1873", 3},  {"1659", 4},  {"1994", 5},  {"1663", 6},  {"1174", 7},  {"1139", 8},
    {"1950", 9},  {"1572", 10}, {"1259", 11}, {"1196", 12}, {"1862", 13}, {"1164", 14}, {"2049", 15},
    {nullptr, 0}};
static_assert(entriesOf(VOICEMAIL_STATUS_MAP) == 15);
inline constexpr PMAP VOICEMAIL_TYPE_MAP[] = {
    {"1363", 1}, {"1884", 2}, {"1003", 3}, {"1795", 4},
    {nullptr, 0}};
static_assert(entriesOf(VOICEMAIL_TYPE_MAP) == 4);

// The root
inline constexpr PMAP ZELTO_CALLBACK_MAP[] = {
    {"2073", 1},  {"2048", 2},  {"1519", 3},  {"1554", 4},  {"1362", 5},  {"1945", 6},  {"1625", 7},  {"1913", 8},
    {"1762", 9},  {"1998", 11}, {"1954", 12}, {"1389", 13}, {"1122", 14}, {"1025", 15}, {"1557", 16}, {"1397", 17},
    {"1080", 18}, {"1093", 19}, {"2021", 20}, {"1699", 21}, {"2105", 22}, {"1400", 23}, {"1669", 24}, {"2081", 25},
    {"1890", 26}, {"1511", 27},
    {nullptr, 0}};
static_assert(entriesOf(ZELTO_CALLBACK_MAP) == 26);
inline constexpr PMAP ZELTO_CLIENTPROP_MAP[] = {
    {"2023", 1}, {"1662", 2}, {"1984", 3}, {"1228", 4}, {"1438", 5}, {"1977", 6}, {"1587", 7}, {"1004", 8},
    {nullptr, 0}};
static_assert(entriesOf(ZELTO_CLIENTPROP_MAP) == 8);
inline constexpr PMAP ZELTO_CONNSTATUS_MAP[] = {
    {"1169", 1}, {"1462", 2}, {"1327", 3}, {"1242", 4},
    {nullptr, 0}};
static_assert(entriesOf(ZELTO_CONNSTATUS_MAP) == 4);
inline constexpr PMAP ZELTO_FILEERROR_MAP[] = {
    {"1968", 1}, {"2098", 2}, {"2015", 3}, {"1310", 4}, {"1750", 5}, {"1929", 6},
    {nullptr, 0}};
static_assert(entriesOf(ZELTO_FILEERROR_MAP) == 6);
inline constexpr PMAP ZELTO_LIBSTATUS_MAP[] = {
    {"1790", 1}, {"1584", 2}, {"1132", 3}, {"1494", 4}, {"1020", 5}, {"1690", 6},
    {nullptr, 0}};
static_assert(entriesOf(ZELTO_LIBSTATUS_MAP) == 6);
inline constexpr PMAP ZELTO_OBJECTTYPE_MAP[] = {
    {"1165", 1},  {"1465", 2},  {"1885", 3},  {"2097", 4},  {"2046", 5},  {"1133", 6},  {"1988", 7},  {"1974", 8},
    {"1684", 9},  {"1609", 10}, {"1764", 11}, {"2085", 12}, {"1459", 13}, {"1676", 14}, {"1221", 15}, {"1799", 16},
    {"1305", 17}, {"2036", 18},
    {nullptr, 0}};
static_assert(entriesOf(ZELTO_OBJECTTYPE_MAP) == 18);
inline constexpr PMAP ZELTO_PLAYRESULT_MAP[] = {
    {"1253", 1}, {"2057", 2}, {"1844", 3}, {"1473", 4}, {"1090", 5}, {"1924", 6}, {"1255", 7},
    {nullptr, 0}};
static_assert(entriesOf(ZELTO_PLAYRESULT_MAP) == 7);
inline constexpr PMAP ZELTO_PROXYTYPE_MAP[] = {
    {"1219", 1}, {"1381", 2},
    {nullptr, 0}};
static_assert(entriesOf(ZELTO_PROXYTYPE_MAP) == 2);
inline constexpr PMAP ZELTO_RCONNECTION_MAP[] = {
    {"1832", 1}, {"2033", 2}, {"1965", 3}, {"1497", 4}, {"1979", 5},
    {nullptr, 0}};
static_assert(entriesOf(ZELTO_RCONNECTION_MAP) == 5);
inline constexpr PMAP ZELTO_STARTRESULT_MAP[] = {
    {"1211", 1}, {"2001", 2}, {"1650", 3}, {"1154", 4},
    {nullptr, 0}};
static_assert(entriesOf(ZELTO_STARTRESULT_MAP) == 4);
inline constexpr PMAP ZELTO_UPGRADEAVAILABILITY_MAP[] = {
    {"1000", 1}, {"1142", 2}, {"1798", 3}, {"1804", 4}, {"1730", 5},
    {nullptr, 0}};
static_assert(entriesOf(ZELTO_UPGRADEAVAILABILITY_MAP) == 5);
// clang-format on
