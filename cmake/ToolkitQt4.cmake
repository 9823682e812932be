set(PRIORITY_INNER_CXX_STANDARD 11)

# Whatever Qt 4 was installed from, its qmake is asked where it is: -DQT_QMAKE_EXECUTABLE=... names it.
find_package(Qt4 4.8 REQUIRED COMPONENTS QtCore QtGui)
set(Qt4_VERSION "${QTVERSION}")
target_link_libraries(PriorityQtCore INTERFACE Qt4::QtCore)
target_link_libraries(PriorityQtWidgets INTERFACE Qt4::QtGui)
