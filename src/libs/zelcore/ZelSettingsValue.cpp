#include "ZelSettingsValue.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QMetaType>
#include <QRect>
#include <QSize>

#include <algorithm>
#include <cmath>
#include <limits>

namespace ZelSettingsValue {
namespace {

using Result = std::optional<QVariant>;

const QLatin1String typeMark("type");
const QLatin1String valueMark("value");

bool fitsInt(qint64 number)
{
    return number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
}

// Numbers that JSON can't write are texts.
QJsonValue jsonNumber(double number)
{
    if (number == 0 && std::signbit(number))
        return QStringLiteral("-0");
    return std::isfinite(number) ? QJsonValue(number) : QString::number(number);
}

std::optional<double> doubleFrom(const QJsonValue &json)
{
    if (json.isDouble())
        return json.toDouble();
    bool ok = false;
    const double number = json.toString().toDouble(&ok);
    return ok ? std::optional(number) : std::nullopt;
}

std::optional<qint64> integerFrom(const QJsonValue &json)
{
    const QVariant number = json.toVariant();
    return number.typeId() == QMetaType::LongLong ? std::optional(number.toLongLong())
                                                  : std::nullopt;
}

QJsonObject marked(const char *type, const QJsonValue &value)
{
    return {{typeMark, QLatin1String(type)}, {valueMark, value}};
}

QJsonArray rectNumbers(const QRect &rect)
{
    const qint64 width = qint64(rect.right()) - rect.left() + 1;
    const qint64 height = qint64(rect.bottom()) - rect.top() + 1;
    return {rect.left(), rect.top(), width, height};
}

bool areAllTexts(const QVariantList &list)
{
    return std::all_of(list.begin(), list.end(), [](const QVariant &element) {
        return element.typeId() == QMetaType::QString;
    });
}

QJsonValue listToJson(const QVariantList &list)
{
    QJsonArray array;
    for (const QVariant &element : list)
        array.append(toJson(element));
    return !list.isEmpty() && areAllTexts(list) ? QJsonValue(marked("QVariantList", array))
                                                : QJsonValue(array);
}

QJsonValue mapToJson(const QVariantMap &map)
{
    QJsonObject object;
    for (auto i = map.begin(); i != map.end(); ++i)
        object.insert(i.key(), toJson(i.value()));
    return marked("QVariantMap", object);
}

QJsonValue doubleToJson(double number)
{
    const bool looksLikeInteger = !std::isfinite(number) || number == std::trunc(number);
    return looksLikeInteger ? QJsonValue(marked("double", jsonNumber(number))) : number;
}

QJsonValue textsToJson(const QStringList &texts)
{
    const QJsonArray array = QJsonArray::fromStringList(texts);
    return array.isEmpty() ? QJsonValue(marked("QStringList", array)) : QJsonValue(array);
}

/// Reads one value with all that it holds.
class Reader
{
public:
    QVariant read(const QJsonValue &json, int depth)
    {
        isTooDeep = isTooDeep || depth > maximumDepth;
        if (isTooDeep)
            return {};
        if (json.isArray())
            return readArray(json.toArray(), depth);
        if (json.isObject())
            return readObject(json.toObject(), depth);
        if (const std::optional<qint64> integer = integerFrom(json))
            return fitsInt(*integer) ? QVariant(int(*integer)) : QVariant(qlonglong(*integer));
        return json.isNull() ? QVariant() : json.toVariant();
    }

    bool isTooDeep = false;

private:
    QVariant readArray(const QJsonArray &array, int depth)
    {
        const QVariantList list = readList(array, depth);
        if (!list.isEmpty() && areAllTexts(list))
            return QVariant(list).toStringList();
        return list;
    }

    QVariantList readList(const QJsonArray &array, int depth)
    {
        QVariantList list;
        for (const auto &element : array)
            list.append(read(element, depth + 1));
        return list;
    }

    QVariantMap readMap(const QJsonObject &object, int depth)
    {
        QVariantMap map;
        for (auto i = object.begin(); i != object.end(); ++i)
            map.insert(i.key(), read(i.value(), depth + 1));
        return map;
    }

    QVariant readObject(const QJsonObject &object, int depth)
    {
        const bool hasMarks =
            object.size() == 2 && object.value(typeMark).isString() && object.contains(valueMark);
        if (hasMarks) {
            const QString type = object.value(typeMark).toString();
            if (const Result value = readMarked(type, object.value(valueMark), depth))
                return *value;
        }
        return readMap(object, depth);
    }

    Result readMarked(const QString &type, const QJsonValue &json, int depth)
    {
        if (type == QLatin1String("QVariantList") && json.isArray())
            return readList(json.toArray(), depth);
        if (type == QLatin1String("QVariantMap") && json.isObject())
            return readMap(json.toObject(), depth);
        if (json.isArray())
            return readNumbers(type, json.toArray());
        return readScalar(type, json);
    }

    static Result readScalar(const QString &type, const QJsonValue &json)
    {
        bool ok = false;
        if (type == QLatin1String("double")) {
            const std::optional<double> number = doubleFrom(json);
            return number ? Result(*number) : std::nullopt;
        }
        if (type == QLatin1String("uint")) {
            const qint64 number = integerFrom(json).value_or(-1);
            ok = number >= 0 && number <= std::numeric_limits<uint>::max();
            return ok ? Result(uint(number)) : std::nullopt;
        }
        if (type == QLatin1String("int64")) {
            const qlonglong number = json.toString().toLongLong(&ok);
            return ok ? Result(number) : std::nullopt;
        }
        if (type == QLatin1String("uint64")) {
            const qulonglong number = json.toString().toULongLong(&ok);
            return ok ? Result(number) : std::nullopt;
        }
        if (type == QLatin1String("QByteArray") && json.isString()) {
            const auto bytes = QByteArray::fromBase64Encoding(
                json.toString().toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
            return bytes ? Result(*bytes) : std::nullopt;
        }
        return std::nullopt;
    }

    static Result readNumbers(const QString &type, const QJsonArray &array)
    {
        if (type == QLatin1String("QStringList") && array.isEmpty())
            return QStringList();
        if (type == QLatin1String("QSizeF") && array.size() == 2) {
            const std::optional<double> width = doubleFrom(array.at(0));
            const std::optional<double> height = doubleFrom(array.at(1));
            return width && height ? Result(QSizeF(*width, *height)) : std::nullopt;
        }
        std::vector<qint64> numbers;
        for (const auto &element : array) {
            const std::optional<qint64> number = integerFrom(element);
            // Wide enough for the width of the widest rectangle, and no sum overflows.
            if (!number || std::abs(*number / 2) > std::numeric_limits<uint>::max())
                return std::nullopt;
            numbers.push_back(*number);
        }
        return readIntegers(type, numbers);
    }

    static Result readIntegers(const QString &type, const std::vector<qint64> &n)
    {
        if (type == QLatin1String("QSize") && n.size() == 2 && fitsInt(n[0]) && fitsInt(n[1]))
            return QSize(int(n[0]), int(n[1]));
        if (type != QLatin1String("QRect") || n.size() != 4)
            return std::nullopt;
        const qint64 right = n[0] + n[2] - 1;
        const qint64 bottom = n[1] + n[3] - 1;
        if (!fitsInt(n[0]) || !fitsInt(n[1]) || !fitsInt(right) || !fitsInt(bottom))
            return std::nullopt;
        return QRect(QPoint(int(n[0]), int(n[1])), QPoint(int(right), int(bottom)));
    }
};

Result storableAt(const QVariant &value, int depth);

Result storableList(const QVariantList &list, int depth)
{
    QVariantList kept;
    for (const QVariant &element : list) {
        const Result result = storableAt(element, depth + 1);
        if (!result)
            return std::nullopt;
        kept.append(*result);
    }
    return kept;
}

Result storableMap(const QVariantMap &map, int depth)
{
    QVariantMap kept;
    for (auto i = map.begin(); i != map.end(); ++i) {
        const Result result = storableAt(i.value(), depth + 1);
        if (!result)
            return std::nullopt;
        kept.insert(i.key(), *result);
    }
    return kept;
}

// Types that the file doesn't know, in the nearest one that it knows.
Result converted(const QVariant &value, int depth)
{
    if (value.metaType().flags().testFlag(QMetaType::IsEnumeration) && value.canConvert<int>())
        return value.toInt();
    if (value.canConvert<QString>())
        return value.toString();
    if (value.canConvert<QVariantList>())
        return storableList(value.toList(), depth);
    if (value.canConvert<QVariantMap>())
        return storableMap(value.toMap(), depth);
    return std::nullopt;
}

Result storableAt(const QVariant &value, int depth)
{
    if (depth > maximumDepth)
        return std::nullopt;
    switch (value.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::QString:
    case QMetaType::QStringList:
    case QMetaType::QByteArray:
    case QMetaType::QSize:
    case QMetaType::QSizeF:
    case QMetaType::QRect:
        return value;
    case QMetaType::QVariantList:
        return storableList(value.toList(), depth);
    case QMetaType::QVariantMap:
        return storableMap(value.toMap(), depth);
    case QMetaType::Float:
        return value.toDouble();
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::SChar:
    case QMetaType::UChar:
        return value.toInt();
    case QMetaType::Long:
        return value.toLongLong();
    case QMetaType::ULong:
        return value.toULongLong();
    case QMetaType::Nullptr:
        return QVariant();
    default:
        return converted(value, depth);
    }
}

} // namespace

std::optional<QVariant> storable(const QVariant &value)
{
    return storableAt(value, 0);
}

QJsonValue toJson(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::Int:
        return value.toInt();
    case QMetaType::UInt:
        return marked("uint", qint64(value.toUInt()));
    case QMetaType::LongLong:
        return marked("int64", QString::number(value.toLongLong()));
    case QMetaType::ULongLong:
        return marked("uint64", QString::number(value.toULongLong()));
    case QMetaType::Double:
        return doubleToJson(value.toDouble());
    case QMetaType::QString:
        return value.toString();
    case QMetaType::QStringList:
        return textsToJson(value.toStringList());
    case QMetaType::QByteArray:
        return marked("QByteArray", QString::fromLatin1(value.toByteArray().toBase64()));
    case QMetaType::QSize:
        return marked("QSize", QJsonArray{value.toSize().width(), value.toSize().height()});
    case QMetaType::QSizeF: {
        const QSizeF size = value.toSizeF();
        return marked("QSizeF", QJsonArray{jsonNumber(size.width()), jsonNumber(size.height())});
    }
    case QMetaType::QRect:
        return marked("QRect", rectNumbers(value.toRect()));
    case QMetaType::QVariantList:
        return listToJson(value.toList());
    case QMetaType::QVariantMap:
        return mapToJson(value.toMap());
    default:
        return QJsonValue::Null;
    }
}

std::optional<QVariant> fromJson(const QJsonValue &value)
{
    Reader reader;
    const QVariant result = reader.read(value, 0);
    return reader.isTooDeep ? std::nullopt : std::optional(result);
}

} // namespace ZelSettingsValue
