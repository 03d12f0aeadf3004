#pragma once

#include "project/ObjectTypes.h"

#include <QPixmap>
#include <QString>

#include <memory>

class Object;

/// What a project knows of one object type.
struct ObjectTypeInfo
{
    using Factory = std::unique_ptr<Object> (*)();

    ObjectType type = ObjectType::None;
    QPixmap icon;
    QString title;
    QString tag; ///< name of the XML element
    Factory factory = nullptr;
};

/// The record of `type` with the texts of the type table, and no icon yet.
ObjectTypeInfo makeObjectTypeInfo(ObjectType type, ObjectTypeInfo::Factory factory);
